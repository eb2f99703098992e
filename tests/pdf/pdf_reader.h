// SPDX-License-Identifier: MIT
/// @file
/// Has PDF files read by programs that others wrote.
#ifndef TOVANGL_TESTS_PDF_PDF_READER_H
#define TOVANGL_TESTS_PDF_PDF_READER_H

#include <QImage>
#include <QRect>

#include <string>
#include <vector>

namespace tovangl {

/// What a command prints that reads a file named picture.pdf. An exception tells that it failed.
[[nodiscard]] std::string readPdf(const std::string& bytes, const std::string& command);

/// The texts in the order of reading, with all white space as single spaces.
[[nodiscard]] std::string textOfPdf(const std::string& bytes);

/// Where the words stand, in pixels of which so many are a point, and with a pixel around each.
[[nodiscard]] std::vector<QRect> wordBoxesOfPdf(const std::string& bytes, int pixelsPerPoint);

/// The pixels of the page.
[[nodiscard]] QImage pixelsOfPdf(const std::string& bytes, int dotsPerInch);

} // namespace tovangl

#endif
