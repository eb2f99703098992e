// SPDX-License-Identifier: MIT
// Runs the tests of one part of the C interface: c_tests charts|fonts|items|results|settings
#include "c_tests.h"

#include <stdlib.h>

const int kinds[KIND_COUNT] = {TOVANGL_PIE, TOVANGL_BARS, TOVANGL_HBARS};

static int failures = 0;

void check(int is_true, const char* condition, const char* file, int line)
{
    if (is_true)
        return;
    ++failures;
    fprintf(stderr, "%s:%d: not so: %s\n", file, line, condition);
}

tovangl_chart* make_chart(int kind)
{
    tovangl_chart* chart = NULL;
    if (tovangl_chart_create(kind, &chart) != TOVANGL_OK) {
        fprintf(stderr, "no chart of kind %d\n", kind);
        exit(EXIT_FAILURE);
    }
    return chart;
}

tovangl_chart* make_filled_chart(int kind)
{
    static const int64_t values[] = {70, 20, 10};
    static const char* const captions[] = {"rent", "food", "books"};
    tovangl_chart* chart = make_chart(kind);
    CHECK(tovangl_chart_add_items(chart, 3, values, captions, NULL, NULL) == TOVANGL_OK);
    return chart;
}

void render(tovangl_chart* chart)
{
    const unsigned char* data = NULL;
    size_t size = 0;
    CHECK(tovangl_chart_render(chart, 300, 200, &data, &size) == TOVANGL_OK);
    CHECK(data != NULL && size > 0);
}

static const struct c_test* find_tests(const char* part)
{
    if (strcmp(part, "charts") == 0)
        return chart_tests;
    if (strcmp(part, "fonts") == 0)
        return font_tests;
    if (strcmp(part, "items") == 0)
        return item_tests;
    if (strcmp(part, "results") == 0)
        return result_tests;
    return strcmp(part, "settings") == 0 ? setting_tests : NULL;
}

int main(int count, char** arguments)
{
    const struct c_test* test = count == 2 ? find_tests(arguments[1]) : NULL;
    if (!test) {
        fprintf(stderr, "usage: c_tests charts|fonts|items|results|settings\n");
        return EXIT_FAILURE;
    }
    for (; test->run; ++test) {
        const int before = failures;
        test->run();
        printf("%s  %s\n", failures == before ? "OK  " : "FAIL", test->behaviour);
    }
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
