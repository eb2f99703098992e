// SPDX-License-Identifier: MIT
/// @file
/// An SVG picture as a parser of XML reads it.
#ifndef TOVANGL_SVG_PARSED_SVG_H
#define TOVANGL_SVG_PARSED_SVG_H

#include <QString>

#include <map>
#include <string>
#include <vector>

namespace tovangl {

struct CSvgElement
{
    QString name;
    std::map<QString, QString> attributes;
    QString text; ///< that it holds itself
    int parent = -1;

    [[nodiscard]] QString operator[](const char* attribute) const;
    [[nodiscard]] double number(const char* attribute) const;
};

/// The elements of a picture, in the order of the file.
class CParsedSvg
{
public:
    explicit CParsedSvg(const std::string& bytes);

    /// Empty where the picture is well-formed.
    [[nodiscard]] const QString& error() const { return m_error; }
    [[nodiscard]] const std::vector<CSvgElement>& elements() const { return m_elements; }
    [[nodiscard]] std::vector<CSvgElement> all(const char* name) const;
    /// The elements of that name within another one.
    [[nodiscard]] std::vector<CSvgElement> children(const CSvgElement& parent,
                                                    const char* name) const;
    /// The groups of items.
    [[nodiscard]] std::vector<CSvgElement> items() const;
    /// What a pointer that rests on each item shows.
    [[nodiscard]] std::vector<std::string> itemTitles() const;
    /// What is written, from the first text to the last.
    [[nodiscard]] std::vector<std::string> texts() const;

private:
    QString m_error;
    std::vector<CSvgElement> m_elements;
};

} // namespace tovangl

#endif
