// SPDX-License-Identifier: MIT
// Writes the manual's page of settings and its pictures: settings_page FOLDER
#include "settings_page.h"

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    PictureFolder folder(arguments[1]);
    folder.write("settings.md", settingsPage(folder));
    return folder.isComplete() ? 0 : 1;
}
