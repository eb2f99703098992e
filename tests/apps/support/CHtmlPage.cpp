// SPDX-License-Identifier: MIT
// Reads a page as strictly as the programs write it.
#include "apps/support/CHtmlPage.h"

#include "common/text_checks.h"

#include <algorithm>
#include <array>

namespace tovangl::program {

namespace {

constexpr std::string_view kNameCharacters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-:";
constexpr const char* kPicture = "svg"; // within a page, but XML
constexpr std::string_view kDoctype = "<!DOCTYPE html>\n";

struct Entity
{
    std::string_view name;
    char character;
};

constexpr std::array<Entity, 5> kEntities{
    {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&#39;", '\''}}};

bool isVoid(const std::string& tag)
{
    return tag == "meta" || tag == "link" || tag == "img" || tag == "area" || tag == "br";
}

} // namespace

std::string HtmlElement::operator[](const std::string& attribute) const
{
    const auto found = attributes.find(attribute);
    return found == attributes.end() ? std::string() : found->second;
}

CHtmlPage::CHtmlPage(std::string_view html)
    : m_rest(html)
{
    if (findBrokenUtf8(html) != std::string_view::npos)
        fail("broken UTF-8");
    if (!skip(kDoctype))
        fail("no doctype");
    while (!m_rest.empty() && m_error.empty()) {
        if (m_rest.substr(0, 2) == "</")
            readClosingTag();
        else if (m_rest[0] == '<')
            readTag();
        else
            readText();
    }
    if (!m_open.empty())
        fail("not closed: " + m_elements[m_open.back()].tag);
}

std::vector<HtmlElement> CHtmlPage::all(const std::string& tag) const
{
    std::vector<HtmlElement> result;
    std::copy_if(m_elements.begin(), m_elements.end(), std::back_inserter(result),
                 [&tag](const HtmlElement& element) { return element.tag == tag; });
    return result;
}

std::vector<std::string> CHtmlPage::texts(const std::string& tag) const
{
    std::vector<std::string> result;
    for (const HtmlElement& element : all(tag))
        result.push_back(element.text);
    return result;
}

bool CHtmlPage::hasId(const std::string& id) const
{
    return std::any_of(m_elements.begin(), m_elements.end(),
                       [&id](const HtmlElement& element) { return element["id"] == id; });
}

bool CHtmlPage::isInPicture() const
{
    return std::any_of(m_open.begin(), m_open.end(),
                       [this](std::size_t index) { return m_elements[index].tag == kPicture; });
}

void CHtmlPage::readText()
{
    const std::size_t end = std::min(m_rest.find('<'), m_rest.size());
    const std::string text = decode(m_rest.substr(0, end));
    m_rest.remove_prefix(end);
    if (!m_open.empty())
        m_elements[m_open.back()].text += text;
}

void CHtmlPage::readTag()
{
    skip("<");
    HtmlElement element;
    element.tag = readName();
    while (m_error.empty() && skip(" "))
        readAttribute(element);
    const bool isClosed = isInPicture() && skip("/>");
    if (element.tag.empty() || (!isClosed && !skip(">")))
        fail("a tag that does not end: " + element.tag);
    if (!isClosed && !isVoid(element.tag))
        m_open.push_back(m_elements.size());
    m_elements.push_back(std::move(element));
}

void CHtmlPage::readClosingTag()
{
    skip("</");
    const std::string tag = readName();
    if (!skip(">") || m_open.empty() || m_elements[m_open.back()].tag != tag)
        fail("closes what is not open: " + tag);
    else
        m_open.pop_back();
}

void CHtmlPage::readAttribute(HtmlElement& element)
{
    const std::string name = readName();
    const std::size_t end = skip("=\"") ? m_rest.find('"') : std::string_view::npos;
    if (name.empty() || end == std::string_view::npos) {
        fail("an attribute without a value: " + element.tag + ' ' + name);
        return;
    }
    if (!element.attributes.emplace(name, decode(m_rest.substr(0, end))).second)
        fail("an attribute twice: " + element.tag + ' ' + name);
    m_rest.remove_prefix(end + 1);
}

std::string CHtmlPage::readName()
{
    const std::size_t end = std::min(m_rest.find_first_not_of(kNameCharacters), m_rest.size());
    const std::string name(m_rest.substr(0, end));
    m_rest.remove_prefix(end);
    return name;
}

std::string CHtmlPage::decode(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const auto entity =
            std::find_if(kEntities.begin(), kEntities.end(), [text](const Entity& candidate) {
                return text.substr(0, candidate.name.size()) == candidate.name;
            });
        if (entity == kEntities.end() && std::string_view("&<>").find(text[0]) != text.npos)
            fail("a bare character: " + std::string(text.substr(0, 20)));
        result += entity == kEntities.end() ? text[0] : entity->character;
        text.remove_prefix(entity == kEntities.end() ? 1 : entity->name.size());
    }
    return result;
}

bool CHtmlPage::skip(std::string_view expected)
{
    if (m_rest.substr(0, expected.size()) != expected)
        return false;
    m_rest.remove_prefix(expected.size());
    return true;
}

void CHtmlPage::fail(const std::string& what)
{
    if (m_error.empty())
        m_error = what;
}

} // namespace tovangl::program
