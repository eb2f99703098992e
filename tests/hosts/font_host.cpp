// SPDX-License-Identifier: MIT
// A Qt host that adds a font, and whose application objects end one after the other.
#include <tovangl/Font.h>
#include <tovangl/PieGraph.h>

#include <QGuiApplication>

namespace {

bool hasAddedFont()
{
    unsigned char* data = nullptr;
    int size = 0;
    tovangl::PieGraph pie(false);
    pie.setFont("Even", 11);
    pie.addItem(1, "caption");
    pie.createPixmap(400, 300, &data, &size);
    return size > 0 && pie.problem() == tovangl::Problem::None;
}

bool hasAddedFontAroundAnApplication()
{
    static int count = 1;
    static char name[] = "font_host";
    static char* arguments[] = {name, nullptr};
    {
        const QGuiApplication application(count, arguments);
        if (!hasAddedFont())
            return false;
    }
    return hasAddedFont();
}

} // namespace

int main()
{
    if (tovangl::addFont(FONT).empty())
        return 1;
    return hasAddedFont() && hasAddedFontAroundAnApplication() && hasAddedFontAroundAnApplication()
               ? 0
               : 2;
}
