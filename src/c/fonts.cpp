// SPDX-License-Identifier: MIT
// The C interface: fonts that the host brings along.
#include <tovangl/Font.h>
#include <tovangl/tovangl_c.h>

#include <string>
#include <vector>

namespace tovangl {

namespace {

// Where the host wants the names of the families.
class CFamilyText
{
public:
    CFamilyText(char* text, std::size_t capacity, std::size_t* length)
        : m_text(text)
        , m_capacity(text ? capacity : 0)
        , m_length(length)
    {}

    void set(const std::string& names) const
    {
        if (m_length)
            *m_length = names.size();
        if (m_capacity == 0)
            return;
        const std::size_t count = names.size() < m_capacity ? names.size() : 0;
        m_text[names.copy(m_text, count)] = '\0';
    }

private:
    char* m_text;
    std::size_t m_capacity;
    std::size_t* m_length;
};

std::string joinLines(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += (text.empty() ? "" : "\n") + line;
    return text;
}

// @param add  adds the font, and returns its families
template <typename Add>
tovangl_status addFamilies(const CFamilyText& result, Add add) noexcept
{
    try {
        result.set({});
        const std::string names = joinLines(add());
        result.set(names);
        return names.empty() ? TOVANGL_NO_FONT : TOVANGL_OK;
    } catch (...) {
        return TOVANGL_NO_MEMORY;
    }
}

} // namespace

} // namespace tovangl

tovangl_status tovangl_add_font_file(const char* path, char* families, size_t capacity,
                                     size_t* length)
{
    if (!path || (!families && capacity > 0))
        return TOVANGL_NULL_ARGUMENT;
    return tovangl::addFamilies(tovangl::CFamilyText(families, capacity, length),
                                [=] { return tovangl::addFont(path); });
}

tovangl_status tovangl_add_font(const unsigned char* bytes, size_t size, char* families,
                                size_t capacity, size_t* length)
{
    if (!bytes || (!families && capacity > 0))
        return TOVANGL_NULL_ARGUMENT;
    return tovangl::addFamilies(tovangl::CFamilyText(families, capacity, length),
                                [=] { return tovangl::addFont(bytes, size); });
}
