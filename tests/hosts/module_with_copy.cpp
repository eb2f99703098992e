// SPDX-License-Identifier: MIT
// What a plugin with a static copy of the library inside adds: the scope that a rendering opens,
// and fonts.
#include "process/CMessageSilencer.h"
#include <tovangl/Font.h>
#include <tovangl/PieGraph.h>

#include <string>

extern "C" __attribute__((visibility("default"))) void* openRendering()
{
    return new tovangl::CMessageSilencer;
}

extern "C" __attribute__((visibility("default"))) void closeRendering(void* rendering)
{
    delete static_cast<tovangl::CMessageSilencer*>(rendering);
}

extern "C" __attribute__((visibility("default"))) bool addFontInModule(const char* path)
{
    return !tovangl::addFont(path).empty();
}

extern "C" __attribute__((visibility("default"))) void drawWithFont(const char* family,
                                                                    std::string* bytes)
{
    unsigned char* data = nullptr;
    int size = 0;
    tovangl::PieGraph pie(false);
    pie.setFont(family, 11);
    pie.addItem(1, "caption");
    pie.createPixmap(400, 300, &data, &size);
    bytes->assign(reinterpret_cast<const char*>(data), static_cast<std::size_t>(size));
}
