// SPDX-License-Identifier: MIT
// The smallest use of the library: writes one pie to a file. Every way to link it builds this.
#include <tovangl/PieGraph.h>

#include <cstdio>

extern "C" int drawPie(const char* path)
{
    tovangl::PieGraph pie(false);
    pie.addItem(3, "three", tovangl::Color{200, 30, 30});
    pie.addItem(1, "one", tovangl::Color{30, 30, 200});

    unsigned char* data = nullptr;
    int size = 0;
    pie.createPixmap(400, 300, &data, &size);

    std::FILE* file = std::fopen(path, "wb");
    if (!file)
        return 1;
    const std::size_t length = static_cast<std::size_t>(size);
    const bool isWritten = std::fwrite(data, 1, length, file) == length;
    return std::fclose(file) == 0 && isWritten ? 0 : 1;
}
