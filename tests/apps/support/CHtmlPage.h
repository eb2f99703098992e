// SPDX-License-Identifier: MIT
/// @file
/// Reads a page as strictly as the programs write it.
#ifndef TOVANGL_TESTS_APPS_CHTMLPAGE_H
#define TOVANGL_TESTS_APPS_CHTMLPAGE_H

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tovangl::program {

struct HtmlElement
{
    std::string tag;
    std::map<std::string, std::string> attributes; ///< decoded
    std::string text;                              ///< directly in it, decoded

    [[nodiscard]] std::string operator[](const std::string& attribute) const;
};

/// A page of elements that are closed in their order, with every attribute in double quotation
/// marks and no bare character that means something in HTML. Anything else is an error, which the
/// page tells. Elements of an SVG picture within the page can also close themselves.
class CHtmlPage
{
public:
    explicit CHtmlPage(std::string_view html);

    /// Empty where the page is sound.
    [[nodiscard]] const std::string& error() const { return m_error; }
    [[nodiscard]] const std::vector<HtmlElement>& elements() const { return m_elements; }
    /// The elements of one kind, in their order.
    [[nodiscard]] std::vector<HtmlElement> all(const std::string& tag) const;
    /// What stands directly in the elements of one kind.
    [[nodiscard]] std::vector<std::string> texts(const std::string& tag) const;
    [[nodiscard]] bool hasId(const std::string& id) const;

private:
    [[nodiscard]] bool isInPicture() const;
    void readText();
    void readTag();
    void readClosingTag();
    void readAttribute(HtmlElement& element);
    std::string readName();
    std::string decode(std::string_view text);
    bool skip(std::string_view expected);
    void fail(const std::string& what);

    std::string_view m_rest;
    std::string m_error;
    std::vector<HtmlElement> m_elements;
    std::vector<std::size_t> m_open; // indices of elements
};

} // namespace tovangl::program

#endif
