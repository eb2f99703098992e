// SPDX-License-Identifier: MIT
// Pictures, and what a chart tells of its last rendering.
#include "c_tests.h"

static int is_png(const unsigned char* data, size_t size)
{
    return data && size > 8 && memcmp(data, "\x89PNG\r\n\x1a\n", 8) == 0;
}

static int is_empty(const tovangl_rectangle* rectangle)
{
    return !rectangle->x && !rectangle->y && !rectangle->width && !rectangle->height;
}

static void every_kind_draws_for_the_screen_and_for_print(void)
{
    size_t k;
    for (k = 0; k < KIND_COUNT; ++k) {
        tovangl_chart* chart = make_filled_chart(kinds[k]);
        const unsigned char* data = NULL;
        size_t size = 0;
        CHECK(tovangl_chart_render(chart, 300, 200, &data, &size) == TOVANGL_OK);
        CHECK(is_png(data, size));
        CHECK(tovangl_chart_render_for_print(chart, 300, 200, 2, &data, &size) == TOVANGL_OK);
        CHECK(is_png(data, size));
        CHECK(tovangl_chart_problem(chart) == TOVANGL_PROBLEM_NONE);
        CHECK(tovangl_chart_free_picture(chart) == TOVANGL_OK);
        CHECK(tovangl_chart_free_picture(chart) == TOVANGL_OK);
        tovangl_chart_destroy(chart);
    }
}

static void every_kind_is_drawn_on_paper(void)
{
    size_t k;
    for (k = 0; k < KIND_COUNT; ++k) {
        tovangl_chart* chart = make_filled_chart(kinds[k]);
        const unsigned char* data = NULL;
        size_t size = 0;
        CHECK(tovangl_chart_render_pdf(chart, 300, 200, &data, &size) == TOVANGL_OK);
        CHECK(size > 5 && memcmp(data, "%PDF-", 5) == 0);
        CHECK(tovangl_chart_problem(chart) == TOVANGL_PROBLEM_NONE);
        CHECK(tovangl_chart_render_pdf(chart, 14401, 200, &data, &size) == TOVANGL_NO_PICTURE);
        CHECK_TEXT(tovangl_chart_error(chart), "A PDF page measures 1 to 14,400 points a side.");
        CHECK_TEXT(tovangl_chart_problem_text(chart), tovangl_chart_error(chart));
        CHECK(data == NULL && size == 0);
        tovangl_chart_destroy(chart);
    }
}

static void a_size_that_no_picture_has_is_told(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_PIE);
    const unsigned char* data = (const unsigned char*)"";
    size_t size = 1;
    CHECK(tovangl_chart_render(chart, 0, 200, &data, &size) == TOVANGL_NO_PICTURE);
    CHECK(data == NULL && size == 0);
    CHECK(tovangl_chart_problem(chart) == TOVANGL_PROBLEM_SIZE_OUT_OF_RANGE);
    CHECK_TEXT(tovangl_chart_error(chart), tovangl_chart_problem_text(chart));
    CHECK(tovangl_chart_error(chart)[0] == 'A');
    CHECK(tovangl_chart_render_for_print(chart, 1000, 1000, 10000, &data, &size) ==
          TOVANGL_NO_PICTURE);
    CHECK(tovangl_chart_render(chart, INT32_MIN, INT32_MAX, &data, &size) == TOVANGL_NO_PICTURE);
    tovangl_chart_destroy(chart);
}

static void a_picture_without_room_is_made_and_told_of(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_BARS);
    const unsigned char* data = NULL;
    size_t size = 0;
    CHECK(tovangl_chart_render(chart, 15, 15, &data, &size) == TOVANGL_OK);
    CHECK(is_png(data, size));
    CHECK(tovangl_chart_problem(chart) == TOVANGL_PROBLEM_TOO_SMALL_FOR_CHART);
    CHECK_TEXT(tovangl_chart_problem_text(chart), "The picture has no room for the chart.");
    tovangl_chart_destroy(chart);
}

static void results_need_somewhere_to_go(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_PIE);
    const unsigned char* data = NULL;
    const tovangl_rectangle* rectangles = NULL;
    const tovangl_slice slice = {0, 0, 10, 10, 0, 90};
    const tovangl_point* points = NULL;
    size_t size = 0;
    CHECK(tovangl_chart_render(chart, 300, 200, NULL, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_render(chart, 300, 200, &data, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_caption_rectangles(chart, NULL, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_caption_rectangles(chart, &rectangles, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_bar_rectangles(chart, NULL, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_slices(chart, NULL, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_slice_polygon(chart, NULL, &points, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_slice_polygon(chart, &slice, NULL, &size) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_describe(chart, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_title_rectangle(chart, NULL) == TOVANGL_NULL_ARGUMENT);
    tovangl_chart_destroy(chart);
}

static void a_description_names_the_greatest_and_the_least(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_PIE);
    const char* text = NULL;
    render(chart);
    CHECK(tovangl_chart_describe(chart, &text) == TOVANGL_OK);
    CHECK(text && strstr(text, "Pie chart, 3 of 3 items drawn") == text);
    CHECK(text && strstr(text, "rent") && strstr(text, "books"));
    tovangl_chart_destroy(chart);
}

static void each_item_has_a_caption_rectangle_and_a_bar(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_BARS);
    const tovangl_rectangle* captions = NULL;
    const tovangl_rectangle* bars = NULL;
    size_t count = 0;
    size_t i;
    render(chart);
    CHECK(tovangl_chart_caption_rectangles(chart, &captions, &count) == TOVANGL_OK);
    CHECK(count == 3);
    CHECK(tovangl_chart_bar_rectangles(chart, &bars, &count) == TOVANGL_OK);
    CHECK(count == 3);
    for (i = 0; i < count; ++i)
        CHECK(!is_empty(&captions[i]) && !is_empty(&bars[i]));
    CHECK(bars[0].height > bars[1].height && bars[1].height > bars[2].height);
    tovangl_chart_destroy(chart);
}

static void the_slices_of_a_pie_fill_a_circle(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_PIE);
    const tovangl_slice* slices = NULL;
    double sum = 0;
    size_t count = 0;
    size_t i;
    render(chart);
    CHECK(tovangl_chart_slices(chart, &slices, &count) == TOVANGL_OK);
    CHECK(count == 3);
    for (i = 0; i < count; ++i)
        sum += slices[i].span;
    CHECK(sum > 359.99 && sum < 360.01);
    tovangl_chart_destroy(chart);
}

static void a_slice_has_a_polygon_that_begins_at_the_centre(void)
{
    const tovangl_slice quarter = {10, 20, 200, 100, 0, 90};
    const tovangl_slice nothing = {0, 0, 0, 0, 0, 0};
    tovangl_chart* chart = make_chart(TOVANGL_BARS);
    const tovangl_point* points = NULL;
    size_t count = 0;
    CHECK(tovangl_chart_slice_polygon(chart, &quarter, &points, &count) == TOVANGL_OK);
    CHECK(count > 3);
    CHECK(points[0].x > 109.9 && points[0].x < 110.1 && points[0].y > 69.9 && points[0].y < 70.1);
    CHECK(points[1].x > 209.9 && points[1].x < 210.6);
    CHECK(tovangl_chart_slice_polygon(chart, &nothing, &points, &count) == TOVANGL_OK);
    CHECK(count == 0);
    tovangl_chart_destroy(chart);
}

static void what_a_kind_does_not_have_is_told(void)
{
    tovangl_chart* pie = make_filled_chart(TOVANGL_PIE);
    tovangl_chart* bars = make_filled_chart(TOVANGL_HBARS);
    const tovangl_rectangle* rectangles = NULL;
    const tovangl_slice* slices = NULL;
    size_t count = 1;
    CHECK(tovangl_chart_bar_rectangles(pie, &rectangles, &count) == TOVANGL_WRONG_KIND);
    CHECK(count == 0 && rectangles == NULL);
    CHECK_TEXT(tovangl_chart_error(pie), "A chart of this kind has no such thing.");
    CHECK(tovangl_chart_slices(bars, &slices, &count) == TOVANGL_WRONG_KIND);
    tovangl_chart_destroy(bars);
    tovangl_chart_destroy(pie);
}

static void a_chart_without_a_title_has_no_rectangle_for_it(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_BARS);
    tovangl_rectangle title = {1, 1, 1, 1};
    render(chart);
    CHECK(tovangl_chart_title_rectangle(chart, &title) == TOVANGL_OK);
    CHECK(is_empty(&title));
    tovangl_chart_destroy(chart);
}

static void a_title_has_a_rectangle_at_the_top(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_BARS);
    tovangl_rectangle title = {0, 0, 0, 0};
    CHECK(tovangl_chart_set(chart, "title", "Spending") == TOVANGL_OK);
    render(chart);
    CHECK(tovangl_chart_title_rectangle(chart, &title) == TOVANGL_OK);
    CHECK(title.width > 20 && title.height > 5 && title.y < 30);
    tovangl_chart_destroy(chart);
}

static void the_others_have_the_last_record(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_PIE);
    const tovangl_slice* slices = NULL;
    size_t count = 0;
    CHECK(tovangl_chart_set(chart, "threshold", "25") == TOVANGL_OK);
    CHECK(tovangl_chart_set(chart, "others", "the rest") == TOVANGL_OK);
    render(chart);
    CHECK(tovangl_chart_slices(chart, &slices, &count) == TOVANGL_OK);
    CHECK(count == 4);
    CHECK(slices[1].span == 0 && slices[2].span == 0);
    CHECK(slices[3].span > 107 && slices[3].span < 109);
    tovangl_chart_destroy(chart);
}

static void the_others_tell_their_number_and_their_value(void)
{
    int i;
    for (i = 0; i < KIND_COUNT; ++i) {
        tovangl_chart* chart = make_filled_chart(kinds[i]);
        CHECK(tovangl_chart_set(chart, "threshold", "25") == TOVANGL_OK);
        CHECK(tovangl_chart_set(chart, "others", "the rest") == TOVANGL_OK);
        CHECK(tovangl_chart_others_count(chart) == 0);
        render(chart);
        CHECK(tovangl_chart_others_count(chart) == 2);
        CHECK(tovangl_chart_others_value(chart) == 30);
        CHECK(tovangl_chart_set(chart, "threshold", "0") == TOVANGL_OK);
        render(chart);
        CHECK(tovangl_chart_others_count(chart) == 0);
        CHECK(tovangl_chart_others_value(chart) == 0);
        tovangl_chart_destroy(chart);
    }
}

static void arrays_of_one_kind_survive_a_call_for_another(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_PIE);
    const tovangl_rectangle* captions = NULL;
    const tovangl_slice* slices = NULL;
    const tovangl_point* points = NULL;
    size_t count = 0;
    tovangl_rectangle first;
    render(chart);
    CHECK(tovangl_chart_caption_rectangles(chart, &captions, &count) == TOVANGL_OK);
    first = captions[0];
    CHECK(tovangl_chart_slices(chart, &slices, &count) == TOVANGL_OK);
    CHECK(tovangl_chart_slice_polygon(chart, &slices[0], &points, &count) == TOVANGL_OK);
    render(chart);
    CHECK(tovangl_chart_clear(chart) == TOVANGL_OK);
    CHECK(memcmp(&first, &captions[0], sizeof first) == 0);
    CHECK(slices[0].span > 0);
    tovangl_chart_destroy(chart);
}

const struct c_test result_tests[] = {
    {"every kind draws for the screen and for print",
     every_kind_draws_for_the_screen_and_for_print},
    {"every kind is drawn on paper", every_kind_is_drawn_on_paper},
    {"a size that no picture has is told", a_size_that_no_picture_has_is_told},
    {"a picture without room is made and told of", a_picture_without_room_is_made_and_told_of},
    {"results need somewhere to go", results_need_somewhere_to_go},
    {"a description names the greatest and the least",
     a_description_names_the_greatest_and_the_least},
    {"each item has a caption rectangle and a bar", each_item_has_a_caption_rectangle_and_a_bar},
    {"the slices of a pie fill a circle", the_slices_of_a_pie_fill_a_circle},
    {"a slice has a polygon that begins at the centre",
     a_slice_has_a_polygon_that_begins_at_the_centre},
    {"what a kind does not have is told", what_a_kind_does_not_have_is_told},
    {"a chart without a title has no rectangle for it",
     a_chart_without_a_title_has_no_rectangle_for_it},
    {"a title has a rectangle at the top", a_title_has_a_rectangle_at_the_top},
    {"the others have the last record", the_others_have_the_last_record},
    {"the others tell their number and their value", the_others_tell_their_number_and_their_value},
    {"arrays of one kind survive a call for another",
     arrays_of_one_kind_survive_a_call_for_another},
    END_OF_TESTS};
