// SPDX-License-Identifier: MIT
// The smallest host in C: writes a pie to the file that the command line names.
#include <tovangl/tovangl_c.h>

#include <stdio.h>

static int write_file(const char* path, const unsigned char* data, size_t size)
{
    FILE* file = fopen(path, "wb");
    if (!file)
        return 1;
    if (fwrite(data, 1, size, file) != size)
        size = 0;
    return fclose(file) == 0 && size > 0 ? 0 : 1;
}

int main(int count, char** arguments)
{
    tovangl_chart* pie = NULL;
    const unsigned char* data = NULL;
    size_t size = 0;
    int result = 2;
    if (count == 2 && tovangl_chart_create(TOVANGL_PIE, &pie) == TOVANGL_OK) {
        tovangl_chart_add_item(pie, 3, "three", 0xc81e1e, TOVANGL_NO_COLOR);
        tovangl_chart_add_item(pie, 1, "one", 0x1e1ec8, TOVANGL_NO_COLOR);
        tovangl_chart_render(pie, 400, 300, &data, &size);
        result = write_file(arguments[1], data, size);
    }
    tovangl_chart_destroy(pie);
    return result;
}
