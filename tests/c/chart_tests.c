// SPDX-License-Identifier: MIT
// The life of a chart, and what belongs to no chart.
#include "c_tests.h"

static void a_kind_that_does_not_exist_gives_no_chart(void)
{
    const int wrong[] = {0, 3, 5, -1, 99};
    size_t i;
    for (i = 0; i < sizeof wrong / sizeof wrong[0]; ++i) {
        tovangl_chart* chart = (tovangl_chart*)&chart;
        CHECK(tovangl_chart_create(wrong[i], &chart) == TOVANGL_BAD_ARGUMENT);
        CHECK(chart == NULL);
    }
}

static void nowhere_to_put_a_chart_is_told(void)
{
    CHECK(tovangl_chart_create(TOVANGL_PIE, NULL) == TOVANGL_NULL_ARGUMENT);
}

static void a_null_chart_is_harmless_to_every_call(void)
{
    const unsigned char* data = NULL;
    const tovangl_rectangle* rectangles = NULL;
    const tovangl_slice* slices = NULL;
    const tovangl_point* points = NULL;
    const tovangl_slice slice = {0, 0, 10, 10, 0, 90};
    tovangl_rectangle title;
    const char* text = NULL;
    size_t size = 0;
    tovangl_chart_destroy(NULL);
    CHECK(tovangl_chart_set(NULL, "title", "x") == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_set_sized(NULL, "title", "x", 1) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_add_item(NULL, 1, "x", 0, 0) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_add_items(NULL, 0, NULL, NULL, NULL, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_add_columns(NULL, 0, NULL, NULL, 0, NULL, NULL, NULL) ==
          TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_clear(NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_render(NULL, 10, 10, &data, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_render_for_print(NULL, 10, 10, 1, &data, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_free_picture(NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_describe(NULL, &text) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_title_rectangle(NULL, &title) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_caption_rectangles(NULL, &rectangles, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_bar_rectangles(NULL, &rectangles, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_slices(NULL, &slices, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_slice_polygon(NULL, &slice, &points, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_problem(NULL) == TOVANGL_PROBLEM_NONE);
    CHECK_TEXT(tovangl_chart_problem_text(NULL), "");
    CHECK(tovangl_chart_others_count(NULL) == 0);
    CHECK(tovangl_chart_others_value(NULL) == 0);
    CHECK_TEXT(tovangl_chart_error(NULL), "");
}

static void an_error_lasts_until_the_next_call_that_succeeds(void)
{
    tovangl_chart* chart = make_chart(TOVANGL_PIE);
    CHECK_TEXT(tovangl_chart_error(chart), "");
    CHECK(tovangl_chart_add_item(chart, 1, NULL, 0, 0) == TOVANGL_NULL_ARGUMENT);
    CHECK_TEXT(tovangl_chart_error(chart), "item 0: the caption is null");
    CHECK(tovangl_chart_add_item(chart, 1, "one", 0, 0) == TOVANGL_OK);
    CHECK_TEXT(tovangl_chart_error(chart), "");
    tovangl_chart_destroy(chart);
}

static void the_version_is_that_of_the_header(void)
{
    CHECK_TEXT(tovangl_version(), TOVANGL_VERSION_STRING);
}

static void every_failure_has_a_sentence(void)
{
    int status;
    CHECK_TEXT(tovangl_status_text(TOVANGL_OK), "");
    for (status = TOVANGL_NULL_ARGUMENT; status <= TOVANGL_NO_FONT; ++status) {
        const char* text = tovangl_status_text(status);
        CHECK(strlen(text) > 10 && text[strlen(text) - 1] == '.');
    }
    CHECK_TEXT(tovangl_status_text(TOVANGL_NO_FONT + 1), "");
    CHECK_TEXT(tovangl_status_text(-1), "");
}

static void warming_up_works_before_and_after_other_charts(void)
{
    tovangl_chart* chart;
    CHECK(tovangl_warm_up() == TOVANGL_OK);
    chart = make_filled_chart(TOVANGL_BARS);
    render(chart);
    CHECK(tovangl_warm_up() == TOVANGL_OK);
    tovangl_chart_destroy(chart);
}

const struct c_test chart_tests[] = {
    {"warming up works before and after other charts",
     warming_up_works_before_and_after_other_charts},
    {"a kind that does not exist gives no chart", a_kind_that_does_not_exist_gives_no_chart},
    {"nowhere to put a chart is told", nowhere_to_put_a_chart_is_told},
    {"a null chart is harmless to every call", a_null_chart_is_harmless_to_every_call},
    {"an error lasts until the next call that succeeds",
     an_error_lasts_until_the_next_call_that_succeeds},
    {"the version is that of the header", the_version_is_that_of_the_header},
    {"every failure has a sentence", every_failure_has_a_sentence},
    END_OF_TESTS};
