// SPDX-License-Identifier: MIT
// Settings by their names, and the table of them.
#include "c_tests.h"

static void every_setting_takes_its_own_default(void)
{
    size_t index;
    for (index = 0; index < tovangl_setting_count(); ++index) {
        tovangl_setting setting;
        size_t k;
        CHECK(tovangl_setting_at(index, &setting) == TOVANGL_OK);
        for (k = 0; k < KIND_COUNT; ++k) {
            tovangl_chart* chart = make_chart(kinds[k]);
            const tovangl_status expected =
                setting.charts & kinds[k] ? TOVANGL_OK : TOVANGL_UNKNOWN_SETTING;
            CHECK(tovangl_chart_set(chart, setting.name, setting.default_value) == expected);
            tovangl_chart_destroy(chart);
        }
    }
    CHECK(index > 0);
}

static void every_row_of_the_table_is_whole(void)
{
    size_t index;
    for (index = 0; index < tovangl_setting_count(); ++index) {
        tovangl_setting setting;
        CHECK(tovangl_setting_at(index, &setting) == TOVANGL_OK);
        CHECK(setting.name[0] != '\0' && setting.summary[0] != '\0');
        CHECK(setting.charts >= TOVANGL_PIE && setting.charts <= 7);
        CHECK(setting.type >= TOVANGL_SETTING_BOOLEAN && setting.type <= TOVANGL_SETTING_LINK);
        CHECK(setting.minimum <= setting.maximum);
        CHECK((setting.choices[0] != '\0') == (setting.type == TOVANGL_SETTING_CHOICE ||
                                               setting.type == TOVANGL_SETTING_AXIS_PROPERTIES));
    }
}

static void there_is_no_row_behind_the_last(void)
{
    tovangl_setting setting;
    CHECK(tovangl_setting_at(tovangl_setting_count(), &setting) == TOVANGL_BAD_ARGUMENT);
    CHECK(setting.name == NULL);
    CHECK(tovangl_setting_at((size_t)-1, &setting) == TOVANGL_BAD_ARGUMENT);
    CHECK(tovangl_setting_at(0, NULL) == TOVANGL_NULL_ARGUMENT);
}

static void a_setting_that_no_chart_has_is_told_from_a_bad_value(void)
{
    tovangl_chart* chart = make_chart(TOVANGL_PIE);
    CHECK(tovangl_chart_set(chart, "colour", "red") == TOVANGL_UNKNOWN_SETTING);
    CHECK_TEXT(tovangl_chart_error(chart), "this chart has no such setting");
    CHECK(tovangl_chart_set(chart, "bar_width", "3") == TOVANGL_UNKNOWN_SETTING);
    CHECK(tovangl_chart_set(chart, "scale", "1001") == TOVANGL_BAD_VALUE);
    CHECK_TEXT(tovangl_chart_error(chart), "the value is not a whole number from 1 to 1000");
    CHECK(tovangl_chart_set(chart, "title", "\xc3") == TOVANGL_BAD_VALUE);
    CHECK_TEXT(tovangl_chart_error(chart), "the value is not UTF-8");
    tovangl_chart_destroy(chart);
}

static void a_name_or_value_that_is_null_is_refused(void)
{
    tovangl_chart* chart = make_chart(TOVANGL_PIE);
    CHECK(tovangl_chart_set(chart, NULL, "x") == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_set(chart, "title", NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_set_sized(chart, NULL, "x", 1) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_set_sized(chart, "title", NULL, 1) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_set_sized(chart, "title", NULL, 0) == TOVANGL_OK);
    tovangl_chart_destroy(chart);
}

static void a_sized_value_ends_where_its_length_says(void)
{
    tovangl_chart* chart = make_chart(TOVANGL_PIE);
    CHECK(tovangl_chart_set_sized(chart, "scale", "2000", 1) == TOVANGL_OK);
    CHECK(tovangl_chart_set_sized(chart, "scale", "2000", 4) == TOVANGL_BAD_VALUE);
    CHECK(tovangl_chart_set_sized(chart, "scale", "2\0", 2) == TOVANGL_BAD_VALUE);
    CHECK(tovangl_chart_set_sized(chart, "title", "a\0b", 3) == TOVANGL_OK);
    tovangl_chart_destroy(chart);
}

static void a_bad_value_changes_nothing(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_BARS);
    const unsigned char* data = NULL;
    unsigned char first[40000];
    size_t first_size = 0;
    size_t size = 0;
    CHECK(tovangl_chart_render(chart, 300, 200, &data, &first_size) == TOVANGL_OK);
    CHECK(first_size < sizeof first);
    memcpy(first, data, first_size);
    CHECK(tovangl_chart_set(chart, "palette", "#ff0000,blue") == TOVANGL_BAD_VALUE);
    CHECK(tovangl_chart_render(chart, 300, 200, &data, &size) == TOVANGL_OK);
    CHECK(size == first_size && memcmp(data, first, size) == 0);
    tovangl_chart_destroy(chart);
}

const struct c_test setting_tests[] = {
    {"every setting takes its own default", every_setting_takes_its_own_default},
    {"every row of the table is whole", every_row_of_the_table_is_whole},
    {"there is no row behind the last", there_is_no_row_behind_the_last},
    {"a setting that no chart has is told from a bad value",
     a_setting_that_no_chart_has_is_told_from_a_bad_value},
    {"a name or value that is null is refused", a_name_or_value_that_is_null_is_refused},
    {"a sized value ends where its length says", a_sized_value_ends_where_its_length_says},
    {"a bad value changes nothing", a_bad_value_changes_nothing},
    END_OF_TESTS};
