// SPDX-License-Identifier: MIT
// Charts from several threads at once: threads [FOLDER]
#include <tovangl/tovangl.h>

#include <atomic>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kThreads = 4;
constexpr int kChartsPerThread = 5;

// Only one thread at a time can use a chart; different charts need no lock. Reusing a chart after
// clear() saves setting it up again.
bool drawCharts(const std::string& folder, int thread)
{
    tovangl::VerticalBarGraph chart(true);
    bool isWritten = true;
    for (int number = 0; number < kChartsPerThread; ++number) {
        chart.clear();
        for (int bar = 1; bar <= 6; ++bar)
            chart.addItem((thread + 1) * 100 + bar * number, "bar " + std::to_string(bar));

        unsigned char* data = nullptr;
        int size = 0;
        chart.createPixmap(320, 200, &data, &size);

        const std::string name = std::to_string(thread) + "-" + std::to_string(number) + ".png";
        std::ofstream file(folder + "/" + name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(data), size);
        isWritten = isWritten && size > 0 && file.flush();
    }
    return isWritten;
}

} // namespace

int main(int count, char** arguments)
{
    const std::string folder = count > 1 ? arguments[1] : ".";
    std::atomic<int> failures(0);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread)
        threads.emplace_back([&folder, &failures, thread] {
            if (!drawCharts(folder, thread))
                ++failures;
        });
    for (std::thread& thread : threads)
        thread.join();
    return failures;
}
