// SPDX-License-Identifier: MIT
// The smallest chart: hello_bars [FILE]
#include <tovangl/tovangl.h>

#include <fstream>

int main(int count, char** arguments)
{
    tovangl::VerticalBarGraph chart(true);
    chart.addItem(320, "Monday");
    chart.addItem(410, "Tuesday");
    chart.addItem(275, "Wednesday");
    chart.addItem(180, "Thursday");

    unsigned char* data = nullptr;
    int size = 0;
    chart.createPixmap(400, 250, &data, &size);

    std::ofstream file(count > 1 ? arguments[1] : "hello_bars.png", std::ios::binary);
    file.write(reinterpret_cast<const char*>(data), size);
    return size > 0 && file.flush() ? 0 : 1;
}
