#ifndef DRAWING_H
#define DRAWING_H

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

/// A drawing that can leave the program: as a file, by the clipboard, or on paper.
class Drawing
{
public:
    virtual ~Drawing() = default;

    /// The title of a file.
    virtual QString title() const = 0;
    /// The size of the sheet in millimetres at the scale 1 : @p reduction.
    virtual QSizeF sheetSize(int reduction) const = 0;
    /// Fills the sheet, whose size in units of the device is that of sheetSize(). Colours are those of paper.
    virtual void paint(QPainter *painter, const QRectF &sheet, int reduction) const = 0;

    static constexpr qreal MILLIMETRES_PER_INCH = 25.4;

    /// The smallest of 1, 2, 5, 10, 20, 50 … at which the sheet is no larger than @p most, in millimetres.
    int reductionFor(const QSizeF &most) const;
    /// The font of texts on a sheet.
    static QFont textFont(qreal pointSize, bool isBold = false);

protected:
    /// The form of a sheet with a part of a product, in millimetres.
    /// @{
    static constexpr qreal SHEET_MARGIN = 8;
    static constexpr qreal LEAST_SHEET_WIDTH = 85;
    /// @}
    static constexpr qreal SHEET_TEXT_SIZE = 8; ///< In points.
};

#endif
