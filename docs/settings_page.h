// SPDX-License-Identifier: MIT
/// @file
/// The manual's page of settings.
#ifndef TOVANGL_DOCS_SETTINGS_PAGE_H
#define TOVANGL_DOCS_SETTINGS_PAGE_H

#include "picture_folder.h"

#include <string>

/// The page in Markdown: a section for each row of tovangl::settings(), with a picture that is
/// drawn into the folder. A setting that the page knows no example for is named in the page as
/// such, and the folder is then incomplete.
[[nodiscard]] std::string settingsPage(PictureFolder& pictures);

#endif
