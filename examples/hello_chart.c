// SPDX-License-Identifier: MIT
// The smallest chart in C: hello_chart [FILE]
#include <tovangl/tovangl_c.h>

#include <stdio.h>

static int save(const char* path, const unsigned char* data, size_t size)
{
    FILE* file = fopen(path, "wb");
    size_t written;
    if (!file)
        return 0;
    written = fwrite(data, 1, size, file);
    return fclose(file) == 0 && written == size;
}

static tovangl_status draw(tovangl_chart* chart, const unsigned char** data, size_t* size)
{
    static const int64_t values[] = {320, 410, 275, 180};
    static const char* const captions[] = {"Monday", "Tuesday", "Wednesday", "Thursday"};
    tovangl_status status = tovangl_chart_set(chart, "background", "true");
    if (status == TOVANGL_OK)
        status = tovangl_chart_add_items(chart, 4, values, captions, NULL, NULL);
    return status == TOVANGL_OK ? tovangl_chart_render(chart, 400, 250, data, size) : status;
}

int main(int count, char** arguments)
{
    tovangl_chart* chart = NULL;
    const unsigned char* data = NULL;
    size_t size = 0;
    int is_saved = 0;
    if (tovangl_chart_create(TOVANGL_BARS, &chart) != TOVANGL_OK)
        return 1;
    if (draw(chart, &data, &size) == TOVANGL_OK)
        is_saved = save(count > 1 ? arguments[1] : "hello_chart.png", data, size);
    else
        fprintf(stderr, "hello_chart: %s\n", tovangl_chart_error(chart));
    tovangl_chart_destroy(chart);
    return is_saved ? 0 : 1;
}
