// SPDX-License-Identifier: MIT
// A pie of the sizes of a folder's entries: disk_usage [FOLDER [FILE]]
#include <tovangl/tovangl.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace {

// Bytes of a file, or of everything below a folder; what cannot be read counts as 0.
long sizeOf(const fs::directory_entry& entry)
{
    std::error_code error;
    if (entry.is_symlink(error))
        return 0;
    if (entry.is_regular_file(error))
        return static_cast<long>(entry.file_size(error));
    long sum = 0;
    const auto options = fs::directory_options::skip_permission_denied;
    for (fs::directory_iterator it(entry, options, error), end; it != end; it.increment(error))
        sum += sizeOf(*it);
    return sum;
}

} // namespace

int main(int count, char** arguments)
{
    std::vector<std::pair<long, std::string>> entries;
    for (const fs::directory_entry& entry : fs::directory_iterator(count > 1 ? arguments[1] : "."))
        entries.emplace_back(sizeOf(entry), entry.path().filename().string());
    std::sort(entries.rbegin(), entries.rend());

    tovangl::PieGraph pie(true);
    pie.setThreshold(1.0); // per cent of the whole
    for (const auto& [bytes, name] : entries)
        pie.addItem(bytes, name);

    unsigned char* data = nullptr;
    int size = 0;
    pie.createPixmap(600, 400, &data, &size);

    std::ofstream file(count > 2 ? arguments[2] : "disk_usage.png", std::ios::binary);
    file.write(reinterpret_cast<const char*>(data), size);
    return size > 0 && file.flush() ? 0 : 1;
}
