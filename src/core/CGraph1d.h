// SPDX-License-Identifier: MIT
/// @file
/// The chart over one item type: it owns the items and renders them into a picture.
#ifndef TOVANGL_CORE_CGRAPH1D_H
#define TOVANGL_CORE_CGRAPH1D_H

#include "core/CGraph1dBase.h"

#include <memory>
#include <vector>

namespace tovangl {

/// A chart of items of type T. Derived charts supply drawContents(); everything else has a default.
template <typename T>
class CGraph1d : public CGraph1dBase
{
public:
    CGraph1d();
    ~CGraph1d() override;

    bool addItem(long long value, const QString& text, const QColor& color) override;
    /// Deletes all items. The default colours are kept.
    void clear() override;
    QPixmap getPixmap(int width, int height) override;
    QPixmap getPixmapForPrinter(int width, int height, int factor) override;
    /// Draws the chart into a new picture of width x scale by height x scale pixels; the null image
    /// where that cannot be made.
    QImage getImage(int width, int height) override;
    /// Draws at factor times the resolution (at least 1) in the colours for print.
    QImage getImageForPrinter(int width, int height, int factor) override;
    void putItemRectangle(std::list<QRect>& rects) const override;
    void initPainter(QPainter& painter) const override;
    virtual void drawContents(QPainter& painter) = 0;
    /// Rebuilds the choice of items to draw from the items and the threshold.
    virtual void selectItems();
    /// (Re)builds the palette for items without a colour.
    virtual void initDefaultColor();

    /// Orders by value, ascending.
    [[nodiscard]] static bool compareItems(const T* a, const T* b);

    [[nodiscard]] const std::list<T*>& items() const { return m_items; }
    [[nodiscard]] const std::list<T*>& selectedItems() const { return m_selectedItems; }
    /// One entry for each item, in the order of adding: the item, or null where the last rendering
    /// left it out.
    [[nodiscard]] std::vector<const T*> drawnItems() const;

protected:
    /// The colour itself, or the default colour of the item that is added next.
    [[nodiscard]] QColor colorOrDefault(const QColor& color);
    /// Takes over a new item, as the last one.
    void appendItem(std::unique_ptr<T> item);

    std::list<T*> m_items;         // owned
    std::list<T*> m_selectedItems; // borrowed from m_items, in the same order

private:
    template <typename Surface>
    Surface getSurface(int width, int height);
    template <typename Surface>
    void drawGraph(Surface& device);

    std::unique_ptr<QColor[]> m_defaultColors; // null until an item needs one
    int m_defaultColorCount = 0;
};

class CBarGraphItem;
class CPieBaseItem;
extern template class CGraph1d<CBarGraphItem>;
extern template class CGraph1d<CPieBaseItem>;

} // namespace tovangl

#endif
