// SPDX-License-Identifier: MIT
// Fonts that the host brings along.
#include "c_tests.h"

static void a_font_file_tells_its_families(void)
{
    char families[100] = "unset";
    size_t length = 0;
    CHECK(tovangl_add_font_file(TOVANGL_TEST_FONT, families, sizeof families, &length) ==
          TOVANGL_OK);
    CHECK(length > 0 && strlen(families) == length);
    CHECK(tovangl_add_font_file(TOVANGL_TEST_FONT, NULL, 0, NULL) == TOVANGL_OK);
}

static void an_added_family_can_be_set(void)
{
    char family[100] = "";
    tovangl_chart* chart = make_filled_chart(TOVANGL_BARS);
    CHECK(tovangl_add_font_file(TOVANGL_TEST_FONT, family, sizeof family, NULL) == TOVANGL_OK);
    CHECK(tovangl_chart_set(chart, "font", "no such family") == TOVANGL_OK);
    render(chart);
    CHECK(tovangl_chart_problem(chart) == TOVANGL_PROBLEM_FAMILY_REPLACED);
    CHECK(tovangl_chart_set(chart, "font", family) == TOVANGL_OK);
    render(chart);
    CHECK(tovangl_chart_problem(chart) == TOVANGL_PROBLEM_NONE);
    tovangl_chart_destroy(chart);
}

static void names_without_room_are_left_out_and_their_length_is_told(void)
{
    char families[100] = "unset";
    size_t length = 0;
    CHECK(tovangl_add_font_file(TOVANGL_TEST_FONT, families, 2, &length) == TOVANGL_OK);
    CHECK_TEXT(families, "");
    CHECK(length >= 2);
    CHECK(tovangl_add_font_file(TOVANGL_TEST_FONT, families, length, NULL) == TOVANGL_OK);
    CHECK_TEXT(families, "");
    CHECK(tovangl_add_font_file(TOVANGL_TEST_FONT, families, length + 1, NULL) == TOVANGL_OK);
    CHECK(strlen(families) == length);
}

static void what_is_no_font_is_told(void)
{
    static const unsigned char bytes[] = "no font at all";
    char families[10] = "unset";
    size_t length = 1;
    CHECK(tovangl_add_font(bytes, sizeof bytes, families, sizeof families, &length) ==
          TOVANGL_NO_FONT);
    CHECK_TEXT(families, "");
    CHECK(length == 0);
    CHECK(tovangl_add_font(bytes, 0, NULL, 0, NULL) == TOVANGL_NO_FONT);
    CHECK(tovangl_add_font_file("/nowhere/font.ttf", NULL, 0, NULL) == TOVANGL_NO_FONT);
}

static void null_pointers_are_refused(void)
{
    CHECK(tovangl_add_font(NULL, 10, NULL, 0, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_add_font_file(NULL, NULL, 0, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_add_font_file(TOVANGL_TEST_FONT, NULL, 10, NULL) == TOVANGL_NULL_ARGUMENT);
}

const struct c_test font_tests[] = {
    {"a font file tells its families", a_font_file_tells_its_families},
    {"an added family can be set", an_added_family_can_be_set},
    {"names without room are left out and their length is told",
     names_without_room_are_left_out_and_their_length_is_told},
    {"what is no font is told", what_is_no_font_is_told},
    {"null pointers are refused", null_pointers_are_refused},
    END_OF_TESTS};
