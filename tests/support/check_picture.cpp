// SPDX-License-Identifier: MIT
// Checks a picture file: check_picture FILE WIDTHxHEIGHT [X,Y=#rrggbb...]
// It has that size, is not blank, and has these colours at these places.
#include <QColor>
#include <QImage>

#include <cstdio>

namespace {

int failures = 0;

void fail(const QString& what)
{
    std::fprintf(stderr, "%s\n", qPrintable(what));
    ++failures;
}

QString sizeOf(const QImage& image)
{
    return QString::fromLatin1("%1x%2").arg(image.width()).arg(image.height());
}

bool isBlank(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
        }
    }
    return true;
}

void checkProbe(const QImage& image, const char* probe)
{
    int x = -1;
    int y = -1;
    char wanted[8] = "";
    if (std::sscanf(probe, "%d,%d=%7s", &x, &y, wanted) != 3 || !image.valid(x, y)) {
        fail(QString::fromLatin1("%1 is no place in the picture").arg(QLatin1String(probe)));
        return;
    }
    const QString found = QColor(image.pixel(x, y)).name();
    if (found != QLatin1String(wanted))
        fail(QString::fromLatin1("%1, but it is %2").arg(QLatin1String(probe), found));
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 3) {
        fail(QLatin1String("usage: check_picture FILE WIDTHxHEIGHT [X,Y=#rrggbb...]"));
        return 2;
    }
    const QImage image(QString::fromLocal8Bit(arguments[1]));
    if (sizeOf(image) != QLatin1String(arguments[2]))
        fail(QString::fromLatin1("the picture is %1").arg(sizeOf(image)));
    if (isBlank(image))
        fail(QLatin1String("the picture is blank"));
    for (int i = 3; i < count; ++i)
        checkProbe(image, arguments[i]);
    return failures == 0 ? 0 : 1;
}
