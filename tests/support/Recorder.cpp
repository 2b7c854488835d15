#include "support/Recorder.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QPaintDevice>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>

namespace {

constexpr int kExtent = 4096; // px, larger than what any test draws

QString number(qreal value)
{
    return QString::number(qAbs(value) < 1e-9 ? 0.0 : value, 'g', 6);
}

QString text(const QPointF &point)
{
    return number(point.x()) + QLatin1Char(',') + number(point.y());
}

template <typename Enum>
QString word(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(value));
}

class Engine : public QPaintEngine
{
public:
    Engine() : QPaintEngine(AllFeatures) { }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override { }
    Type type() const override { return User; }
    void drawPixmap(const QRectF &rect, const QPixmap &, const QRectF &) override { note("pixmap", rect); }

    void drawRects(const QRectF *rects, int count) override
    {
        for (const QRectF *rect = rects; rect != rects + count; ++rect)
            note("rect", *rect);
    }
    void drawLines(const QLineF *lines, int count) override
    {
        for (const QLineF *line = lines; line != lines + count; ++line)
            shapes += QStringLiteral("line %1 %2").arg(text(line->p1()), text(line->p2())) + ink();
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode) override
    {
        QString result = QStringLiteral("poly");
        for (const QPointF *point = points; point != points + count; ++point)
            result += QLatin1Char(' ') + text(*point);
        shapes += result + ink();
    }
    void drawPath(const QPainterPath &path) override
    {
        if (!ink().isEmpty())
            shapes += QStringLiteral("path ") + Recorder::pathText(path) + ink();
    }

    QStringList shapes;

private:
    void note(const char *shape, const QRectF &rect)
    {
        shapes += QStringLiteral("%1 %2 %3x%4")
                      .arg(QLatin1String(shape), text(rect.topLeft()), number(rect.width()), number(rect.height()))
            + ink();
    }
    QString ink() const
    {
        const QBrush brush = painter()->brush();
        const QPen pen = painter()->pen();
        QString result = brush.style() == Qt::NoBrush ? QString() : QLatin1Char(' ') + brush.color().name();
        if (pen.style() != Qt::NoPen)
            result += QStringLiteral(" %1 w%2 %3 %4 %5")
                          .arg(pen.color().name(), number(pen.widthF()), word(pen.style()), word(pen.capStyle()),
                              word(pen.joinStyle()));
        return result;
    }
};

class Device : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return &engine; }
    mutable Engine engine;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return kExtent;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return metric == PdmDevicePixelRatio ? 1 : 96;
        }
    }
};

} // namespace

QStringList Recorder::shapes(const std::function<void(QPainter *)> &paint)
{
    Device device;
    QPainter painter(&device);
    paint(&painter);
    painter.end();
    return device.engine.shapes;
}

QString Recorder::pathText(const QPainterPath &path)
{
    QStringList result;
    for (int i = 0; i < path.elementCount(); ++i) {
        const bool curve = path.elementAt(i).isCurveTo();
        const char kind = curve ? 'C' : path.elementAt(i).isMoveTo() ? 'M' : 'L';
        i += curve ? 2 : 0;
        result += QLatin1Char(kind) + text(path.elementAt(i));
    }
    return result.join(QLatin1Char(' '));
}
