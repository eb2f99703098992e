// SPDX-License-Identifier: MIT
// Adding items, one by one and in columns.
#include "c_tests.h"

static const int64_t values[] = {70, 20, 10};

// The number of items, as the regions count them.
static size_t item_count(tovangl_chart* chart)
{
    const tovangl_rectangle* rectangles = NULL;
    size_t count = 0;
    CHECK(tovangl_chart_caption_rectangles(chart, &rectangles, &count) == TOVANGL_OK);
    return count;
}

// Whether two charts draw the same bytes.
static int draw_the_same(tovangl_chart* one, tovangl_chart* other)
{
    const unsigned char* data[2] = {NULL, NULL};
    size_t size[2] = {0, 0};
    CHECK(tovangl_chart_render(one, 300, 200, &data[0], &size[0]) == TOVANGL_OK);
    CHECK(tovangl_chart_render(other, 300, 200, &data[1], &size[1]) == TOVANGL_OK);
    return size[0] == size[1] && memcmp(data[0], data[1], size[0]) == 0;
}

static void items_may_come_one_by_one_or_together(void)
{
    tovangl_chart* together = make_filled_chart(TOVANGL_PIE);
    tovangl_chart* single = make_chart(TOVANGL_PIE);
    tovangl_chart_add_item(single, 70, "rent", TOVANGL_NO_COLOR, TOVANGL_NO_COLOR);
    tovangl_chart_add_item(single, 20, "food", TOVANGL_NO_COLOR, TOVANGL_NO_COLOR);
    CHECK(!draw_the_same(together, single));
    tovangl_chart_add_item(single, 10, "books", TOVANGL_NO_COLOR, TOVANGL_NO_COLOR);
    CHECK(draw_the_same(together, single));
    tovangl_chart_destroy(single);
    tovangl_chart_destroy(together);
}

static void captions_may_be_cut_from_one_text(void)
{
    const size_t offsets[] = {2, 6, 10, 15};
    tovangl_chart* listed = make_filled_chart(TOVANGL_BARS);
    tovangl_chart* cut = make_chart(TOVANGL_BARS);
    CHECK(tovangl_chart_add_columns(cut, 3, values, "> rentfoodbooks <", 17, offsets, NULL, NULL) ==
          TOVANGL_OK);
    CHECK(draw_the_same(listed, cut));
    tovangl_chart_destroy(cut);
    tovangl_chart_destroy(listed);
}

static void captions_may_have_a_nul_between_them(void)
{
    tovangl_chart* listed = make_filled_chart(TOVANGL_BARS);
    tovangl_chart* cut = make_chart(TOVANGL_BARS);
    CHECK(tovangl_chart_add_columns(cut, 3, values, "rent\0food\0books", 15, NULL, NULL, NULL) ==
          TOVANGL_OK);
    CHECK(draw_the_same(listed, cut));
    tovangl_chart_destroy(cut);
    tovangl_chart_destroy(listed);
}

static void other_numbers_of_nuls_are_refused(void)
{
    tovangl_chart* chart = make_chart(TOVANGL_PIE);
    CHECK(tovangl_chart_add_columns(chart, 3, values, "a\0b", 3, NULL, NULL, NULL) ==
          TOVANGL_BAD_ARGUMENT);
    CHECK_TEXT(tovangl_chart_error(chart), "the NULs do not cut the text into so many pieces");
    CHECK(tovangl_chart_add_columns(chart, 3, values, "a\0b\0c", 6, NULL, NULL, NULL) ==
          TOVANGL_BAD_ARGUMENT);
    CHECK(item_count(chart) == 0);
    CHECK(tovangl_chart_add_columns(chart, 3, values, "\0", 2, NULL, NULL, NULL) == TOVANGL_OK);
    CHECK(tovangl_chart_set_links(chart, 3, "\0#b", 4, NULL) == TOVANGL_OK);
    CHECK(item_count(chart) == 3);
    tovangl_chart_destroy(chart);
}

static void captions_of_no_text_are_empty(void)
{
    const size_t offsets[] = {0, 0, 0, 0};
    const char* const captions[] = {"", "", ""};
    tovangl_chart* listed = make_chart(TOVANGL_BARS);
    tovangl_chart* cut = make_chart(TOVANGL_BARS);
    CHECK(tovangl_chart_add_items(listed, 3, values, captions, NULL, NULL) == TOVANGL_OK);
    CHECK(tovangl_chart_add_columns(cut, 3, values, NULL, 0, offsets, NULL, NULL) == TOVANGL_OK);
    CHECK(draw_the_same(listed, cut));
    tovangl_chart_destroy(cut);
    tovangl_chart_destroy(listed);
}

static void an_item_has_a_colour_of_its_own_or_that_of_the_palette(void)
{
    const char* const captions[] = {"rent", "food", "books"};
    const uint32_t unset[] = {TOVANGL_NO_COLOR, TOVANGL_NO_COLOR, TOVANGL_NO_COLOR};
    const uint32_t red[] = {TOVANGL_NO_COLOR, 0xc02020, TOVANGL_NO_COLOR};
    tovangl_chart* plain = make_filled_chart(TOVANGL_BARS);
    tovangl_chart* colored = make_chart(TOVANGL_BARS);
    CHECK(tovangl_chart_add_items(colored, 3, values, captions, unset, unset) == TOVANGL_OK);
    CHECK(draw_the_same(plain, colored));
    CHECK(tovangl_chart_clear(colored) == TOVANGL_OK);
    CHECK(tovangl_chart_add_items(colored, 3, values, captions, red, NULL) == TOVANGL_OK);
    CHECK(!draw_the_same(plain, colored));
    CHECK(tovangl_chart_clear(colored) == TOVANGL_OK);
    CHECK(tovangl_chart_add_items(colored, 3, values, captions, NULL, red) == TOVANGL_OK);
    CHECK(!draw_the_same(plain, colored));
    tovangl_chart_destroy(colored);
    tovangl_chart_destroy(plain);
}

static void one_wrong_item_keeps_all_others_out(void)
{
    const char* const broken[] = {"rent", "\xff\xfe", "books"};
    const char* const missing[] = {"rent", "food", NULL};
    const char* const good[] = {"rent", "food", "books"};
    const uint32_t colors[] = {0, 0x1000000, 0};
    tovangl_chart* chart = make_filled_chart(TOVANGL_HBARS);
    CHECK(tovangl_chart_add_items(chart, 3, values, broken, NULL, NULL) == TOVANGL_NOT_UTF8);
    CHECK_TEXT(tovangl_chart_error(chart), "item 1: the caption is not UTF-8");
    CHECK(tovangl_chart_add_items(chart, 3, values, missing, NULL, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK_TEXT(tovangl_chart_error(chart), "item 2: the caption is null");
    CHECK(tovangl_chart_add_items(chart, 3, values, good, colors, NULL) == TOVANGL_BAD_ARGUMENT);
    CHECK_TEXT(tovangl_chart_error(chart), "item 1: the colour is not 0xrrggbb");
    CHECK(tovangl_chart_add_items(chart, 3, values, good, NULL, colors) == TOVANGL_BAD_ARGUMENT);
    CHECK(item_count(chart) == 3);
    tovangl_chart_destroy(chart);
}

static void offsets_that_do_not_cut_the_text_are_refused(void)
{
    const size_t falling[] = {0, 4, 3, 5};
    const size_t too_far[] = {0, 1, 2, 6};
    const size_t greatest[] = {0, 1, 2, (size_t)-1};
    tovangl_chart* chart = make_chart(TOVANGL_PIE);
    CHECK(tovangl_chart_add_columns(chart, 3, values, "abcde", 5, falling, NULL, NULL) ==
          TOVANGL_BAD_ARGUMENT);
    CHECK(tovangl_chart_add_columns(chart, 3, values, "abcde", 5, too_far, NULL, NULL) ==
          TOVANGL_BAD_ARGUMENT);
    CHECK(tovangl_chart_add_columns(chart, 3, values, "abcde", 5, greatest, NULL, NULL) ==
          TOVANGL_BAD_ARGUMENT);
    CHECK(item_count(chart) == 0);
    tovangl_chart_destroy(chart);
}

static void columns_that_are_null_are_refused_unless_they_are_empty(void)
{
    const char* const captions[] = {"rent", "food", "books"};
    const size_t offsets[] = {0, 1, 2, 3};
    tovangl_chart* chart = make_chart(TOVANGL_PIE);
    CHECK(tovangl_chart_add_items(chart, 3, NULL, captions, NULL, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_add_items(chart, 3, values, NULL, NULL, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_add_columns(chart, 3, values, "abc", 3, NULL, NULL, NULL) ==
          TOVANGL_BAD_ARGUMENT);
    CHECK(tovangl_chart_add_columns(chart, 3, NULL, "abc", 3, offsets, NULL, NULL) ==
          TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_add_columns(chart, 3, values, NULL, 3, offsets, NULL, NULL) ==
          TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_add_items(chart, 0, NULL, NULL, NULL, NULL) == TOVANGL_OK);
    CHECK(tovangl_chart_add_columns(chart, 0, NULL, NULL, 0, NULL, NULL, NULL) == TOVANGL_OK);
    CHECK(item_count(chart) == 0);
    tovangl_chart_destroy(chart);
}

// Whether the chart as SVG holds the text.
static int shows(tovangl_chart* chart, const char* text)
{
    const unsigned char* data = NULL;
    size_t size = 0;
    size_t at = 0;
    const size_t length = strlen(text);
    CHECK(tovangl_chart_render_svg(chart, 300, 200, &data, &size) == TOVANGL_OK);
    while (at + length <= size && memcmp(data + at, text, length) != 0)
        ++at;
    return at + length <= size;
}

static void links_may_come_one_by_one_or_together(void)
{
    const size_t offsets[] = {0, 6, 6, 12};
    tovangl_chart* chart = make_filled_chart(TOVANGL_PIE);
    CHECK(!shows(chart, "href="));
    CHECK(tovangl_chart_set_link(chart, 1, "food") == TOVANGL_OK);
    CHECK(shows(chart, "href=\"food\""));
    CHECK(tovangl_chart_set_links(chart, 3, "#rent,#books", 12, offsets) == TOVANGL_OK);
    CHECK(shows(chart, "href=\"#rent,\""));
    CHECK(shows(chart, "href=\"#books\""));
    CHECK(!shows(chart, "href=\"food\""));
    tovangl_chart_destroy(chart);
}

static void one_wrong_link_keeps_all_others_out(void)
{
    const size_t cut[] = {0, 4, 8};
    const size_t falling[] = {0, 4, 3};
    tovangl_chart* chart = make_filled_chart(TOVANGL_BARS);
    CHECK(tovangl_chart_set_links(chart, 2, "rentjs:x", 8, cut) == TOVANGL_BAD_ARGUMENT);
    CHECK_TEXT(tovangl_chart_error(chart), "item 1: the address is none that a link can have");
    CHECK(tovangl_chart_set_links(chart, 2, "renta\0bc", 8, cut) == TOVANGL_BAD_ARGUMENT);
    CHECK(tovangl_chart_set_links(chart, 2, "rent\xff\xfe//", 8, cut) == TOVANGL_NOT_UTF8);
    CHECK_TEXT(tovangl_chart_error(chart), "item 1: the address is not UTF-8");
    CHECK(tovangl_chart_set_links(chart, 2, "rentfood", 8, falling) == TOVANGL_BAD_ARGUMENT);
    CHECK(tovangl_chart_set_links(chart, 2, "rentfood", 7, cut) == TOVANGL_BAD_ARGUMENT);
    CHECK(tovangl_chart_set_link(chart, 1, "js:x") == TOVANGL_BAD_ARGUMENT);
    CHECK(!shows(chart, "href="));
    tovangl_chart_destroy(chart);
}

static void there_are_no_more_links_than_items(void)
{
    const size_t offsets[] = {0, 1, 2, 3, 4};
    tovangl_chart* chart = make_filled_chart(TOVANGL_HBARS);
    CHECK(tovangl_chart_set_links(chart, 4, "abcd", 4, offsets) == TOVANGL_BAD_ARGUMENT);
    CHECK_TEXT(tovangl_chart_error(chart), "there are more addresses than items");
    CHECK(tovangl_chart_set_link(chart, 3, "d") == TOVANGL_BAD_ARGUMENT);
    CHECK(tovangl_chart_set_links(chart, 3, NULL, 3, offsets) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_set_links(chart, 3, "abc", 3, NULL) == TOVANGL_BAD_ARGUMENT);
    CHECK(tovangl_chart_set_link(chart, 0, NULL) == TOVANGL_NULL_ARGUMENT);
    CHECK(tovangl_chart_set_links(chart, 0, NULL, 0, NULL) == TOVANGL_OK);
    CHECK(tovangl_chart_set_links(NULL, 0, NULL, 0, NULL) == TOVANGL_NULL_ARGUMENT);
    tovangl_chart_destroy(chart);
}

static void clearing_leaves_no_item(void)
{
    tovangl_chart* chart = make_filled_chart(TOVANGL_PIE);
    CHECK(item_count(chart) == 3);
    CHECK(tovangl_chart_clear(chart) == TOVANGL_OK);
    CHECK(item_count(chart) == 0);
    tovangl_chart_destroy(chart);
}

const struct c_test item_tests[] = {
    {"items may come one by one or together", items_may_come_one_by_one_or_together},
    {"captions may be cut from one text", captions_may_be_cut_from_one_text},
    {"captions may have a NUL between them", captions_may_have_a_nul_between_them},
    {"other numbers of NULs are refused", other_numbers_of_nuls_are_refused},
    {"captions of no text are empty", captions_of_no_text_are_empty},
    {"an item has a colour of its own or that of the palette",
     an_item_has_a_colour_of_its_own_or_that_of_the_palette},
    {"one wrong item keeps all others out", one_wrong_item_keeps_all_others_out},
    {"offsets that do not cut the text are refused", offsets_that_do_not_cut_the_text_are_refused},
    {"columns that are null are refused unless they are empty",
     columns_that_are_null_are_refused_unless_they_are_empty},
    {"links may come one by one or together", links_may_come_one_by_one_or_together},
    {"one wrong link keeps all others out", one_wrong_link_keeps_all_others_out},
    {"there are no more links than items", there_are_no_more_links_than_items},
    {"clearing leaves no item", clearing_leaves_no_item},
    END_OF_TESTS};
