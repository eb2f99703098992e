// SPDX-License-Identifier: MIT
// A chart in one sentence.
#include "chart/description.h"

#include "chart/CChartSummary.h"
#include "input/CGraph1dInput.h"
#include "text/number_text.h"
#include "text/one_line.h"

#include <QLocale>

#include <algorithm>

namespace tovangl {

namespace {

constexpr int kLongestCaption = 256; // characters
constexpr ushort kEllipsis = 0x2026;
constexpr ushort kOpeningQuote = 0x201c;
constexpr ushort kClosingQuote = 0x201d;

QString shortened(const QString& caption)
{
    if (caption.size() <= kLongestCaption)
        return caption;
    const bool isPairCut = caption.at(kLongestCaption - 1).isHighSurrogate();
    return caption.left(isPairCut ? kLongestCaption - 1 : kLongestCaption) + QChar(kEllipsis);
}

QString inQuotes(const QString& text)
{
    return QChar(kOpeningQuote) + text + QChar(kClosingQuote);
}

QString numberOf(long long value, const QLocale& locale)
{
    return numberText(value, PlainNumber, locale, kKilo1024);
}

QString mention(const CGraph1dItem& item, const QLocale& locale)
{
    QString number = numberOf(item.value, locale);
    const QString caption = oneLine(shortened(item.text));
    if (caption.isEmpty())
        return number;
    return inQuotes(caption) + QLatin1String(" with ") + number;
}

// The title as a sentence of its own.
QString introduction(const QString& title)
{
    const QString line = oneLine(shortened(title));
    return line.isEmpty() ? QString() : inQuotes(line) + QLatin1String(". ");
}

// If several items share the greatest value, the first is named; of the least ones, the last.
QString extremes(const std::vector<const CGraph1dItem*>& items, const QLocale& locale)
{
    if (items.empty())
        return QString();
    if (items.size() == 1)
        return QLatin1String(": ") + mention(*items.front(), locale);
    const auto isLess = [](const CGraph1dItem* a, const CGraph1dItem* b) {
        return a->value < b->value;
    };
    const auto greatest = std::max_element(items.begin(), items.end(), isLess);
    const auto least = std::min_element(items.rbegin(), items.rend(), isLess);
    return QLatin1String(": the greatest is ") + mention(**greatest, locale) +
           QLatin1String(", the least is ") + mention(**least, locale);
}

// What was gathered into one item.
QString gathered(const CLeftOut& others, const QLocale& locale)
{
    const QString sum = numberOf(others.value(), locale);
    if (others.count() == 1)
        return QLatin1String(", and 1 other with ") + sum;
    return QLatin1String(", and ") + numberOf(static_cast<long long>(others.count()), locale) +
           QLatin1String(" others with ") + sum + QLatin1String(" together");
}

} // namespace

std::string describeChart(const CChartSummary& chart)
{
    const CGraph1dInput& input = chart.input;
    const QLocale& locale = input.settings.locale;
    std::vector<const CGraph1dItem*> items;
    items.reserve(chart.items.size());
    for (const std::size_t position : chart.items)
        items.push_back(&input.items[position]);
    const auto count = [&locale](std::size_t number) {
        return numberOf(static_cast<long long>(number), locale);
    };
    const QString text =
        introduction(input.settings.title) + QLatin1String(chart.kind) + QLatin1String(", ") +
        count(items.size()) + QLatin1String(" of ") + count(input.items.size()) +
        QLatin1String(" items drawn") + extremes(items, locale) +
        (chart.others ? gathered(*chart.others, locale) : QString()) + QLatin1Char('.');
    const QByteArray bytes = text.toUtf8();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

QString itemTitle(const CGraph1dItem& item, const QLocale& locale)
{
    const QString number = numberOf(item.value, locale);
    const QString caption = oneLine(shortened(item.text));
    return caption.isEmpty() ? number : caption + QLatin1String(": ") + number;
}

} // namespace tovangl
