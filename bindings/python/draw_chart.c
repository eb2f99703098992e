// SPDX-License-Identifier: MIT
// A whole chart in one call, for Python.
#include "draw_chart.h"

#include <string.h>

static tovangl_status set_all(drawing* drawn, const char* settings, size_t count,
                              const size_t* lengths)
{
    for (; drawn->settings < count; ++drawn->settings) {
        const char* value = settings + strlen(settings) + 1;
        const size_t length = lengths != NULL ? lengths[drawn->settings] : strlen(value);
        const tovangl_status status =
            tovangl_chart_set_sized(drawn->chart, settings, value, length);
        if (status != TOVANGL_OK)
            return status;
        settings = value + length + 1;
    }
    return TOVANGL_OK;
}

drawing draw_chart(int kind, const char* settings, size_t setting_count, const size_t* lengths,
                   size_t count, const int64_t* values, const char* text, size_t size,
                   const size_t* offsets, const uint32_t* fills, const uint32_t* outlines,
                   const char* links, size_t links_size, const size_t* link_offsets,
                   render_function render, int32_t width, int32_t height, int32_t factor)
{
    drawing drawn = {TOVANGL_OK, 0, NULL, NULL, 0};
    const unsigned char* data = NULL;
    drawn.status = tovangl_chart_create(kind, &drawn.chart);
    if (drawn.status == TOVANGL_OK)
        drawn.status = set_all(&drawn, settings, setting_count, lengths);
    if (drawn.status == TOVANGL_OK)
        drawn.status = tovangl_chart_add_columns(drawn.chart, count, values, text, size, offsets,
                                                 fills, outlines);
    if (drawn.status == TOVANGL_OK && links != NULL)
        drawn.status = tovangl_chart_set_links(drawn.chart, count, links, links_size, link_offsets);
    if (drawn.status == TOVANGL_OK)
        drawn.status = factor > 0 ? tovangl_chart_render_for_print(drawn.chart, width, height,
                                                                   factor, &data, &drawn.size)
                                  : render(drawn.chart, width, height, &data, &drawn.size);
    drawn.data = (const char*)data;
    return drawn;
}
