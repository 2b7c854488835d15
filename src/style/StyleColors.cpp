#include "style/StyleColors_p.h"

#include "style/CustomStyleSheetData_p.h"
#include "style/StyleImages_p.h"

#include <QtCore/QSet>

namespace {

const QLatin1String s_strGradient("qlineargradient");
const QLatin1String s_strGradientSplit("**");

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

// A colour of four numbers; invalid when one of them is not from 0 to 255.
QColor rgbColor(int red, int green, int blue, int alpha)
{
    const auto inRange = [](int value) { return value >= 0 && value <= 255; };
    // QColor::setRgb() would log a warning about the numbers and leave the colour invalid.
    return inRange(red) && inRange(green) && inRange(blue) && inRange(alpha) ? QColor(red, green, blue, alpha)
                                                                             : QColor();
}

// "rgba(" and ")" are cut off by their length, not by what they say.
QBrush rgbaBrush(const QString &trimmed)
{
    QString numbers = trimmed.mid(5);
    numbers.chop(1);
    const QStringList parts = numbers.split(QLatin1Char(','));
    if (parts.size() < 3)
        return QBrush();
    const auto part = [&parts](int index) { return parts.at(index).trimmed().toInt(); };
    const int alpha = parts.size() == 4 ? part(3) : 255;
    return QBrush(rgbColor(part(0), part(1), part(2), alpha));
}

// The coordinates of a gradient text in their order; false when one of the four isn't "word:number".
bool readCoordinates(const QString &text, double *coordinates)
{
    const QStringList parts = text.split(QLatin1Char(';'));
    if (parts.size() != 4)
        return false;
    for (int i = 0; i < 4; ++i) {
        const QStringList pieces = parts.at(i).split(QLatin1Char(':'));
        if (pieces.size() != 2)
            return false;
        coordinates[i] = pieces.at(1).toDouble();
    }
    return true;
}

QGradientStops readStops(const QString &text)
{
    QGradientStops stops;
    const QStringList parts = text.split(QLatin1Char(';'));
    for (const QString &part : parts) {
        const QStringList pieces = part.split(QLatin1Char(':'));
        if (pieces.size() != 2)
            continue;
        const QStringList stop = pieces.at(1).trimmed().split(QLatin1Char(' '));
        if (stop.size() != 2)
            continue;
        const double position = stop.at(0).toDouble();
        // QGradient drops others as well, with a warning.
        if (position >= 0.0 && position <= 1.0)
            stops.append(qMakePair(position, Custom::string2Color(stop.at(1))));
    }
    return stops;
}

// The value of a skin colour; empty when there is none.
QString skinColorText(const QString &name)
{
    const CustomStyleSheetData *data = CustomStyleSheetData::instance();
    if (!data)
        return QString();
    QString key = name.toUpper();
    if (!key.startsWith(QLatin1String(Custom::c_szDBColorSymbol)))
        key.prepend(QLatin1String(Custom::c_szDBColorSymbol));
    return data->colors.value(key);
}

// Follows a chain of skin colours to the text at its end; empty for an unknown name or a chain that comes back to
// itself.
QString followChain(QString text)
{
    QSet<QString> seen;
    while (text.startsWith(QLatin1String(Custom::c_szDBColorSymbol))) {
        const QString key = text.toUpper();
        if (seen.contains(key))
            return QString();
        seen.insert(key);
        text = skinColorText(key);
    }
    return text;
}

bool isGradient(const QString &text)
{
    return text.trimmed().startsWith(s_strGradient, Qt::CaseInsensitive);
}

// A text at the end of its chain, other than a gradient. isImage tells whether it was taken for a path.
QBrush plainBrush(const QString &text, bool *isImage = nullptr)
{
    if (isImage)
        *isImage = false;
    if (text.isEmpty())
        return QBrush();
    const QString trimmed = text.trimmed();
    if (trimmed.startsWith(QLatin1Char('#'))) {
        QColor color;
        color.setNamedColor(text);
        return QBrush(color);
    }
    if (trimmed.startsWith(QLatin1String("rgba"), Qt::CaseInsensitive))
        return rgbaBrush(trimmed);
    if (isImage)
        *isImage = true;
    return QBrush(StyleImages::pixmap(trimmed));
}

} // namespace

QString Custom::color2String(const QColor &color)
{
    return QStringLiteral("rgba(%1,%2,%3,%4)").arg(color.red()).arg(color.green()).arg(color.blue()).arg(color.alpha());
}

QString Custom::gradient2String(const QLinearGradient &gradient)
{
    double x1 = gradient.start().x();
    double y1 = gradient.start().y();
    double x2 = gradient.finalStop().x();
    double y2 = gradient.finalStop().y();
    // The start is scaled by the x extent and the final stop by the y extent; documents rely on it.
    const double maxX = qMax(x1, x2);
    const double maxY = qMax(y1, y2);
    if (maxX > 1.0) {
        x1 /= maxX;
        y1 /= maxX;
    }
    if (maxY > 1.0) {
        x2 /= maxY;
        y2 /= maxY;
    }
    QString text = QLatin1String("qlineargradient(x1:") + number(x1) + QLatin1String("; y1:") + number(y1)
        + QLatin1String("; x2:") + number(x2) + QLatin1String("; y2:") + number(y2) + s_strGradientSplit;
    const QGradientStops stops = gradient.stops();
    for (const QGradientStop &stop : stops)
        text += QLatin1String("stop:") + number(stop.first) + QLatin1Char(' ') + color2String(stop.second)
            + QLatin1Char(';');
    return text + QLatin1Char(')');
}

QLinearGradient Custom::string2Gradient(const QString &text, const QRect &rect, bool *ok)
{
    QLinearGradient gradient;
    if (ok)
        *ok = false;
    const QStringList halves = text.split(s_strGradientSplit);
    double coordinates[4] = {};
    if (halves.size() != 2 || !readCoordinates(halves.at(0), coordinates))
        return gradient;
    const double width = rect.isEmpty() ? 1.0 : rect.width();
    const double height = rect.isEmpty() ? 1.0 : rect.height();
    gradient.setStart(coordinates[0] * width, coordinates[1] * height);
    gradient.setFinalStop(coordinates[2] * width, coordinates[3] * height);
    gradient.setStops(readStops(halves.at(1)));
    if (ok)
        *ok = true;
    return gradient;
}

QString Custom::brush2String(const QBrush &brush)
{
    const QGradient *gradient = brush.gradient();
    if (gradient && gradient->type() == QGradient::LinearGradient)
        return gradient2String(*static_cast<const QLinearGradient *>(gradient));
    return color2String(brush.color());
}

QBrush Custom::string2Brush(const QString &text, const QRect &rect)
{
    const QString end = followChain(text);
    return isGradient(end) ? QBrush(string2Gradient(end.trimmed(), rect)) : plainBrush(end);
}

QColor Custom::string2Color(const QString &text)
{
    const QString end = followChain(text);
    // The colour of a gradient brush is invalid whatever its stops are, so they need no look: a gradient whose stops
    // name the gradient itself ends here.
    if (isGradient(end))
        return QColor();
    const QBrush brush = plainBrush(end);
    return brush.style() == Qt::NoBrush ? QColor() : brush.color();
}

QBrush Custom::getDataBaseColor(const QString &name, const QRect &rect)
{
    return string2Brush(skinColorText(name), rect);
}

ParsedBrush::ParsedBrush(const QString &text)
{
    const QString end = followChain(text);
    if (!isGradient(end)) {
        bool isImage = false;
        m_oBrush = plainBrush(end, &isImage);
        // A file on disk may change at any time, and one that isn't there may come.
        const bool isKept = end.startsWith(QLatin1Char(':')) && m_oBrush.style() != Qt::NoBrush;
        if (isImage && !isKept)
            m_strPath = end;
        return;
    }
    // A text that is no gradient after all gives the default one, which isn't scaled.
    m_oBrush = QBrush(Custom::string2Gradient(end.trimmed(), QRect(), &m_bScales));
}

QBrush ParsedBrush::scaledTo(const QRect &rect) const
{
    if (!m_strPath.isEmpty())
        return plainBrush(m_strPath);
    if (!m_bScales || rect.isEmpty())
        return m_oBrush;
    QLinearGradient gradient = *static_cast<const QLinearGradient *>(m_oBrush.gradient());
    const QPointF start = gradient.start();
    const QPointF end = gradient.finalStop();
    gradient.setStart(start.x() * rect.width(), start.y() * rect.height());
    gradient.setFinalStop(end.x() * rect.width(), end.y() * rect.height());
    return QBrush(gradient);
}
