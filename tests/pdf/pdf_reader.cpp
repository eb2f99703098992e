// SPDX-License-Identifier: MIT
// Has PDF files read by programs that others wrote.
#include "pdf/pdf_reader.h"

#include "apps/support/CTemporaryFolder.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <QString>

#include <cstdlib>
#include <stdexcept>

namespace tovangl {

std::string readPdf(const std::string& bytes, const std::string& command)
{
    const program::CTemporaryFolder folder;
    folder.write("picture.pdf", bytes);
    const std::string script =
        "cd '" + folder.path() + "' && { " + command + "; } >output 2>errors </dev/null";
    if (std::system(script.c_str()) != 0)
        throw std::runtime_error(command + ": " + folder.read("errors") + folder.read("output"));
    return folder.read("output");
}

std::string textOfPdf(const std::string& bytes)
{
    const std::string text = readPdf(bytes, "pdftotext -enc UTF-8 picture.pdf -");
    return QString::fromStdString(text).simplified().toStdString();
}

std::vector<QRect> wordBoxesOfPdf(const std::string& bytes, int pixelsPerPoint)
{
    constexpr int kMargin = 1;
    const QString words = QString::fromStdString(readPdf(bytes, "pdftotext -bbox picture.pdf -"));
    static const QRegularExpression box(QStringLiteral(
        "<word xMin=\"([^\"]*)\" yMin=\"([^\"]*)\" xMax=\"([^\"]*)\" yMax=\"([^\"]*)\">"));
    std::vector<QRect> boxes;
    for (auto match = box.globalMatch(words); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const auto pixels = [&](int i) { return found.captured(i).toDouble() * pixelsPerPoint; };
        const QRectF covered(QPointF(pixels(1), pixels(2)), QPointF(pixels(3), pixels(4)));
        boxes.push_back(covered.toAlignedRect().adjusted(-kMargin, -kMargin, kMargin, kMargin));
    }
    return boxes;
}

QImage pixelsOfPdf(const std::string& bytes, int dotsPerInch)
{
    const std::string pixels =
        readPdf(bytes, "pdftoppm -r " + std::to_string(dotsPerInch) + " picture.pdf");
    return QImage::fromData(QByteArray::fromStdString(pixels), "PPM")
        .convertToFormat(QImage::Format_ARGB32);
}

} // namespace tovangl
