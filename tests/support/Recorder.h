#pragma once

#include <QtCore/QStringList>
#include <QtGui/QPaintDevice>
#include <QtGui/QPaintEngine>

#include <functional>

/// Writes down what is drawn instead of drawing it: one text a shape, in drawing order, such as
/// "rect 0,0 9x1 #ff0000", "poly 0,0 1,1 8,1 9,0 #ff0000", "line 0,0 9,0 pen #ff0000 w1 solid flat bevel",
/// "path M1,2 L3,4 C5,6 pen ...". Curves are named by their end points.
class Recorder : public QPaintDevice
{
public:
    static QStringList shapes(const std::function<void(QPainter *)> &paint);
    /// The elements of a path, curves by their end points.
    static QString pathText(const QPainterPath &path);

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine();
        bool begin(QPaintDevice *device) override;
        bool end() override;
        void updateState(const QPaintEngineState &newState) override;
        void drawRects(const QRectF *rects, int count) override;
        void drawLines(const QLineF *lines, int count) override;
        void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override;
        void drawPath(const QPainterPath &path) override;
        void drawPixmap(const QRectF &rect, const QPixmap &pixmap, const QRectF &source) override;
        Type type() const override;

        QStringList shapes;

    private:
        QString ink() const;
    };

    mutable Engine m_oEngine;
};
