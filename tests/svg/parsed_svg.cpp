// SPDX-License-Identifier: MIT
// An SVG picture as a parser of XML reads it.
#include "svg/parsed_svg.h"

#include <QByteArray>
#include <QXmlStreamReader>

namespace tovangl {

QString CSvgElement::operator[](const char* attribute) const
{
    const auto found = attributes.find(QLatin1String(attribute));
    return found == attributes.end() ? QString() : found->second;
}

double CSvgElement::number(const char* attribute) const
{
    return (*this)[attribute].toDouble();
}

CParsedSvg::CParsedSvg(const std::string& bytes)
{
    QXmlStreamReader reader(QByteArray(bytes.data(), static_cast<int>(bytes.size())));
    std::vector<int> open;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            CSvgElement element;
            element.name = reader.name().toString();
            for (const QXmlStreamAttribute& attribute : reader.attributes())
                element.attributes[attribute.qualifiedName().toString()] =
                    attribute.value().toString();
            element.parent = open.empty() ? -1 : open.back();
            open.push_back(static_cast<int>(m_elements.size()));
            m_elements.push_back(element);
        } else if (reader.isEndElement()) {
            open.pop_back();
        } else if (reader.isCharacters()) {
            m_elements[static_cast<std::size_t>(open.back())].text += reader.text().toString();
        }
    }
    m_error = reader.errorString();
}

std::vector<CSvgElement> CParsedSvg::all(const char* name) const
{
    std::vector<CSvgElement> found;
    for (const CSvgElement& element : m_elements) {
        if (element.name == QLatin1String(name))
            found.push_back(element);
    }
    return found;
}

std::vector<CSvgElement> CParsedSvg::children(const CSvgElement& parent, const char* name) const
{
    std::vector<CSvgElement> found;
    for (const CSvgElement& element : all(name)) {
        if (element.parent >= 0 &&
            m_elements[static_cast<std::size_t>(element.parent)]["id"] == parent["id"] &&
            m_elements[static_cast<std::size_t>(element.parent)].name == parent.name)
            found.push_back(element);
    }
    return found;
}

std::vector<CSvgElement> CParsedSvg::items() const
{
    std::vector<CSvgElement> found;
    for (const CSvgElement& element : m_elements) {
        if (element["class"] == QLatin1String("item"))
            found.push_back(element);
    }
    return found;
}

std::vector<std::string> CParsedSvg::itemTitles() const
{
    std::vector<std::string> titles;
    for (const CSvgElement& item : items())
        titles.push_back(children(item, "title").at(0).text.toStdString());
    return titles;
}

std::vector<std::string> CParsedSvg::texts() const
{
    std::vector<std::string> texts;
    for (const CSvgElement& element : all("text"))
        texts.push_back(element.text.toStdString());
    return texts;
}

} // namespace tovangl
