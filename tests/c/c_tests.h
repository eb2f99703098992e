// SPDX-License-Identifier: MIT
// What the tests in C share: a table of tests for each part of the interface, and checks.
#ifndef TOVANGL_C_C_TESTS_H
#define TOVANGL_C_C_TESTS_H

#include <tovangl/tovangl_c.h>

#include <stdio.h>
#include <string.h>

// Goes on after a failure, and counts it.
#define CHECK(condition) check(condition, #condition, __FILE__, __LINE__)
#define CHECK_TEXT(text, expected) CHECK(strcmp(text, expected) == 0)

void check(int is_true, const char* condition, const char* file, int line);

// One test: a sentence of behaviour, and the function that tests it.
struct c_test
{
    const char* behaviour;
    void (*run)(void);
};

// Each table ends in a row without a function.
extern const struct c_test chart_tests[];
extern const struct c_test font_tests[];
extern const struct c_test item_tests[];
extern const struct c_test result_tests[];
extern const struct c_test setting_tests[];

#define END_OF_TESTS                                                                               \
    {                                                                                              \
        NULL, NULL                                                                                 \
    }

// A chart of that kind; never null.
tovangl_chart* make_chart(int kind);
// The same with three items.
tovangl_chart* make_filled_chart(int kind);
// Renders the chart in the size of all tests.
void render(tovangl_chart* chart);

// The number of kinds, and each of them.
#define KIND_COUNT 3
extern const int kinds[KIND_COUNT];

#endif
