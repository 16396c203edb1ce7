#ifndef PAINTRECORDER_H
#define PAINTRECORDER_H

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QLineF>
#include <QList>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <QString>
#include <QTest>
#include <QTransform>
#include <QWidget>
#include <QtMath>

#include <algorithm>
#include <cmath>

/// A sheet that notes what is painted on it, in millimetres. Its resolution is so fine that fonts have any size.
class PaintRecorder : public QPaintDevice
{
public:
    static constexpr qreal DOTS_PER_MILLIMETRE = 20;
    static constexpr qreal POINT = 25.4 / 72; ///< In millimetres.

    struct Rect
    {
        QRectF rect;
        QColor fill; ///< Invalid for a frame.
        QPen pen; ///< Its width is that on the sheet.
        bool isSmooth;
    };
    struct Line
    {
        QLineF line;
        QPen pen; ///< As above.
    };
    struct Text
    {
        QString text;
        QRectF rect; ///< Around the letters, as high as a line of their font.
        qreal angle; ///< Clockwise, in degrees.
        QColor color;
        QFont font;
    };

    /// With 1 dot for a unit, widgets are noted in pixels.
    explicit PaintRecorder(qreal dotsPerUnit = DOTS_PER_MILLIMETRE) : myEngine(this, dotsPerUnit) { }

    QPaintEngine *paintEngine() const override { return &myEngine; }

    QList<Rect> rects;
    QList<Line> lines;
    QList<Text> texts;

    /// The rectangles with this fill.
    QList<QRectF> filled(const QColor &color) const
    {
        QList<QRectF> result;
        for (const Rect &rect : rects) {
            if (rect.fill == color)
                result += rect.rect;
        }
        return result;
    }

    /// The first text that contains this; an empty one if there is none.
    Text text(const QString &part) const
    {
        const auto hasPart = [&part](const Text &text) { return text.text.contains(part); };
        const auto found = std::find_if(texts.begin(), texts.end(), hasPart);
        return found == texts.end() ? Text() : *found;
    }

    /// The rectangle in dots, in which drawings paint, from one in millimetres.
    static QRectF dots(const QRectF &rect)
    {
        return { rect.topLeft() * DOTS_PER_MILLIMETRE, rect.size() * DOTS_PER_MILLIMETRE };
    }
    /// The height of a line of text, in millimetres.
    qreal lineHeight(const QFont &font) { return QFontMetricsF(font, this).height() / DOTS_PER_MILLIMETRE; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return int(1000 * DOTS_PER_MILLIMETRE);
        case PdmWidthMM:
        case PdmHeightMM:
            return 1000;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return qRound(DOTS_PER_MILLIMETRE * 25.4);
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine(PaintRecorder *recorder, qreal dotsPerUnit)
            : QPaintEngine(AllFeatures),
              my(recorder),
              myUnit(1 / dotsPerUnit)
        { }

        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }
        void updateState(const QPaintEngineState &) override { }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
        void drawPath(const QPainterPath &) override { }
        void drawPolygon(const QPointF *, int, PolygonDrawMode) override { }

        void drawRects(const QRectF *drawn, int count) override
        {
            const QBrush brush = state->brush();
            const QColor fill = brush.style() == Qt::NoBrush ? QColor() : brush.color();
            for (int i = 0; i < count; ++i)
                my->rects.append({ mapped().mapRect(drawn[i]), fill, pen(),
                                   state->renderHints().testFlag(QPainter::Antialiasing) });
        }
        void drawLines(const QLineF *drawn, int count) override
        {
            for (int i = 0; i < count; ++i)
                my->lines.append({ mapped().map(drawn[i]), pen() });
        }
        void drawTextItem(const QPointF &place, const QTextItem &item) override
        {
            const QRectF rect(place.x(), place.y() - item.ascent(), item.width(), item.ascent() + item.descent());
            const QTransform transform = mapped();
            const QPointF direction = transform.map(QPointF(1, 0)) - transform.map(QPointF());
            my->texts.append({ item.text(), transform.mapRect(rect),
                               qRadiansToDegrees(std::atan2(direction.y(), direction.x())), state->pen().color(),
                               item.font() });
        }

    private:
        QTransform mapped() const { return state->transform() * QTransform::fromScale(myUnit, myUnit); }
        QPen pen() const
        {
            QPen result = state->pen();
            result.setWidthF(result.widthF() * myUnit);
            return result;
        }

        PaintRecorder *my;
        qreal myUnit;
    };

    mutable Engine myEngine;
};

/// Notes the widget, without its button, in pixels.
inline void paint(PaintRecorder *recorder, QWidget *widget)
{
    widget->render(recorder, QPoint(), QRegion(), QWidget::RenderFlags());
}

/// Empty for numbers that are equal but for a fiftieth of a millimetre, by which texts are rounded.
inline QString difference(qreal found, qreal expected)
{
    return std::abs(found - expected) < 0.02 ? QString() : QStringLiteral("%1 instead of %2").arg(found).arg(expected);
}

inline QString difference(const QRectF &found, const QRectF &expected)
{
    return difference(found.x(), expected.x()) + difference(found.y(), expected.y())
            + difference(found.width(), expected.width()) + difference(found.height(), expected.height());
}

inline QString difference(const QLineF &found, const QLineF &expected)
{
    return difference(QRectF(found.p1(), found.p2()), QRectF(expected.p1(), expected.p2()));
}

#define COMPARE_NEAR(found, expected) QCOMPARE(difference(found, expected), QString())

#endif
