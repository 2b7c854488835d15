#include "support/Recorder.h"

#include <QtCore/QHash>
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

QString penText(const QPen &pen)
{
    const QHash<int, QString> caps{ { Qt::FlatCap, QStringLiteral("flat") },
        { Qt::SquareCap, QStringLiteral("square") }, { Qt::RoundCap, QStringLiteral("round") } };
    const QHash<int, QString> joins{ { Qt::MiterJoin, QStringLiteral("miter") },
        { Qt::BevelJoin, QStringLiteral("bevel") }, { Qt::RoundJoin, QStringLiteral("round") } };
    const QHash<int, QString> styles{ { Qt::SolidLine, QStringLiteral("solid") },
        { Qt::DashLine, QStringLiteral("dash") }, { Qt::DotLine, QStringLiteral("dot") },
        { Qt::DashDotLine, QStringLiteral("dashdot") }, { Qt::DashDotDotLine, QStringLiteral("dashdotdot") } };
    return QStringLiteral(" pen %1 w%2 %3 %4 %5")
        .arg(pen.color().name(), number(pen.widthF()), styles.value(pen.style()), caps.value(pen.capStyle()),
            joins.value(pen.joinStyle()));
}

} // namespace

QStringList Recorder::shapes(const std::function<void(QPainter *)> &paint)
{
    Recorder recorder;
    QPainter painter(&recorder);
    paint(&painter);
    painter.end();
    return recorder.m_oEngine.shapes;
}

QString Recorder::pathText(const QPainterPath &path)
{
    QStringList result;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            result += QLatin1Char('M') + text(element);
        } else if (element.isLineTo()) {
            result += QLatin1Char('L') + text(element);
        } else {
            i += 2;
            result += QLatin1Char('C') + text(path.elementAt(i));
        }
    }
    return result.join(QLatin1Char(' '));
}

QPaintEngine *Recorder::paintEngine() const
{
    return &m_oEngine;
}

int Recorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
    case PdmHeight:
        return kExtent;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    case PdmDepth:
        return 32;
    case PdmNumColors:
        return 0x7fffffff;
    default:
        return metric == PdmDevicePixelRatio ? 1 : 96;
    }
}

Recorder::Engine::Engine() : QPaintEngine(AllFeatures) { }

bool Recorder::Engine::begin(QPaintDevice *device)
{
    Q_UNUSED(device)
    return true;
}

bool Recorder::Engine::end()
{
    return true;
}

void Recorder::Engine::updateState(const QPaintEngineState &newState)
{
    Q_UNUSED(newState)
}

QString Recorder::Engine::ink() const
{
    QString result;
    if (painter()->brush().style() != Qt::NoBrush)
        result += QLatin1Char(' ') + painter()->brush().color().name();
    if (painter()->pen().style() != Qt::NoPen)
        result += penText(painter()->pen());
    return result;
}

void Recorder::Engine::drawRects(const QRectF *rects, int count)
{
    for (const QRectF *rect = rects; rect != rects + count; ++rect)
        shapes
            += QStringLiteral("rect %1 %2x%3").arg(text(rect->topLeft()), number(rect->width()), number(rect->height()))
            + ink();
}

void Recorder::Engine::drawLines(const QLineF *lines, int count)
{
    for (const QLineF *line = lines; line != lines + count; ++line)
        shapes += QStringLiteral("line %1 %2").arg(text(line->p1()), text(line->p2())) + ink();
}

void Recorder::Engine::drawPolygon(const QPointF *points, int count, PolygonDrawMode mode)
{
    Q_UNUSED(mode)
    QString result = QStringLiteral("poly");
    for (const QPointF *point = points; point != points + count; ++point)
        result += QLatin1Char(' ') + text(*point);
    shapes += result + ink();
}

void Recorder::Engine::drawPath(const QPainterPath &path)
{
    if (!ink().isEmpty())
        shapes += QStringLiteral("path ") + pathText(path) + ink();
}

void Recorder::Engine::drawPixmap(const QRectF &rect, const QPixmap &pixmap, const QRectF &source)
{
    Q_UNUSED(pixmap)
    Q_UNUSED(source)
    shapes += QStringLiteral("pixmap %1 %2x%3").arg(text(rect.topLeft()), number(rect.width()), number(rect.height()));
}

QPaintEngine::Type Recorder::Engine::type() const
{
    return User;
}
