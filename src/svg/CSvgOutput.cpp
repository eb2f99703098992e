// SPDX-License-Identifier: MIT
// A picture of shapes as an SVG file.
#include "svg/CSvgOutput.h"

#include "layout/CBarLayout.h"
#include "layout/CPieLayout.h"
#include "svg/bar_svg.h"
#include "svg/picture_id.h"
#include "svg/pie_svg.h"
#include "svg/svg_shapes.h"
#include "svg/svg_values.h"

#include <QFontInfo>

#include <algorithm>
#include <limits>
#include <new>

namespace tovangl {

namespace {

// The host gets the size as an int.
constexpr std::size_t kLargestFile = std::numeric_limits<int>::max();

// What a picture with links is to a program that reads it aloud: an image would be one thing, with
// nothing in it to be reached.
const char* roleOf(const CSvgFrame& frame)
{
    const bool hasLinks = std::any_of(frame.items.begin(), frame.items.end(),
                                      [](const CSvgItem& item) { return !item.link.isEmpty(); });
    return hasLinks ? "group" : "img";
}

void beginPicture(CSvgMarkup& markup, const CSvgFrame& frame)
{
    markup.begin("svg")
        .attribute("xmlns", "http://www.w3.org/2000/svg")
        .attribute("width", frame.width)
        .attribute("height", frame.height)
        .attribute("viewBox", "0 0 " + svgNumber(frame.width) + ' ' + svgNumber(frame.height))
        .attribute("role", roleOf(frame))
        .textAttribute("font-family", svgFontFamily(frame.fontFamily))
        .attribute("font-size", QFontInfo(frame.font).pixelSize())
        .open();
    markup.textElement("title", frame.title);
    markup.textElement("desc", frame.description);
}

void fillPicture(CSvgScene& scene)
{
    const CSvgFrame& frame = scene.frame;
    if (frame.picture.alpha() == 0)
        return;
    scene.markup.begin("rect").attribute("width", frame.width).attribute("height", frame.height);
    scene.colors.paint(scene.markup, {{"fill", frame.picture}});
    scene.markup.end();
}

} // namespace

CSvgOutput::CSvgOutput(const CSvgFrame& frame)
    : m_scene(frame)
{
    beginPicture(m_scene.markup, frame);
    fillPicture(m_scene);
}

void CSvgOutput::paint(const CBarLayout& layout)
{
    writeBars(m_scene, layout);
}

void CSvgOutput::paint(const CPieLayout& layout)
{
    writePie(m_scene, layout);
}

CPictureFile CSvgOutput::finish()
{
    m_scene.markup.styleElement(m_scene.colors.styleSheet());
    m_scene.markup.close("svg");
    std::string text = m_scene.markup.text();
    if (text.size() > kLargestFile)
        throw std::bad_alloc();
    setPictureId(text);
    CPictureFile file{std::make_unique<unsigned char[]>(text.size()), text.size()};
    std::copy(text.begin(), text.end(), file.data.get());
    return file;
}

} // namespace tovangl
