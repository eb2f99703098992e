// SPDX-License-Identifier: MIT
/// @file
/// A whole chart in one call, for Python: each call from there gives up the lock of the interpreter
/// and takes it again, and what it runs is far from the processor after a drawing.
#ifndef TOVANGL_PYTHON_DRAW_CHART_H
#define TOVANGL_PYTHON_DRAW_CHART_H

#include <tovangl/tovangl_c.h>

/// What drawing a chart gave.
typedef struct drawing
{
    tovangl_status status; ///< of what failed first
    size_t settings;       ///< how many were set before one failed
    tovangl_chart* chart;  ///< the caller's to destroy; null where it could not be made
    const char* data;      ///< the file, which the chart owns; null where there is none
    size_t size;           ///< of the file, in bytes
} drawing;

/// One of the library's functions that render a chart without a factor.
typedef tovangl_status (*render_function)(tovangl_chart* chart, int32_t width, int32_t height,
                                          const unsigned char** data, size_t* size);

/// Makes a chart, sets it, adds items and links, and renders it, up to what fails first.
///
/// @param settings  names and values by turns, with a NUL between two of them
/// @param setting_count  number of names
/// @param lengths   one for each value, in bytes; or null: no value has a NUL inside
/// @param count, values, text, size, offsets, fills, outlines  as for tovangl_chart_add_columns()
/// @param links, links_size, link_offsets  text, size and offsets as for tovangl_chart_set_links(),
///                  with a link for each item; null: no links
/// @param render    makes the file if factor is 0
/// @param factor    above 0: tovangl_chart_render_for_print() makes the file
drawing draw_chart(int kind, const char* settings, size_t setting_count, const size_t* lengths,
                   size_t count, const int64_t* values, const char* text, size_t size,
                   const size_t* offsets, const uint32_t* fills, const uint32_t* outlines,
                   const char* links, size_t links_size, const size_t* link_offsets,
                   render_function render, int32_t width, int32_t height, int32_t factor);

#endif
