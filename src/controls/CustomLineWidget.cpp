#include <Zanthic/CustomLineWidget.h>

#include <QtGui/QPainter>

namespace {

QString s_strLineType()
{
    return QStringLiteral("LineType");
}

QString s_strIsDottedLine()
{
    return QStringLiteral("IsDottedLine");
}

// In pen widths.
constexpr qreal kDash = 3.0;
constexpr qreal kGap = 2.0;
constexpr int kDashPeriod = 5;

struct LineGeometry
{
    QLine line;
    int thickness;
    int length;
};

LineGeometry lineGeometry(const QSize &size, bool vertical)
{
    const int w = size.width();
    const int h = size.height();
    if (vertical)
        return { QLine(w / 2, 0, w / 2, h), w, h };
    return { QLine(0, h / 2, w, h / 2), h, w };
}

QVector<qreal> dashPattern(const LineGeometry &geometry)
{
    QVector<qreal> pattern;
    const int n = geometry.length / geometry.thickness;
    for (int i = 0; i < n; i += kDashPeriod)
        pattern << kDash << kGap;
    return pattern;
}

} // namespace

CustomLineWidget::CustomLineWidget(QWidget *parent)
    : QWidget(parent), CustomObject(this, QString(), QStringLiteral("Default"))
{
    // A literal name: classes derived from this one are styled as lines, too.
    cSetClassName(QStringLiteral("CustomLineWidget"));
}

CustomLineWidget::~CustomLineWidget() = default;

void CustomLineWidget::cSetIsDottedLine(bool dotted)
{
    cSetAttributeValue(s_strIsDottedLine(), QString::number(int(dotted)), Custom::Normal, {});
}

void CustomLineWidget::cSetLineType(LineType type)
{
    cSetAttributeValue(s_strLineType(), QString::number(int(type)), Custom::Normal, {});
}

void CustomLineWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    const bool vertical = cAttributeValue(s_strLineType(), Custom::Normal, {}).toInt() == VerticalLine;
    const bool dotted = cAttributeValue(s_strIsDottedLine(), Custom::Normal, {}).toInt() != 0;
    const LineGeometry geometry = lineGeometry(size(), vertical);
    if (geometry.thickness <= 0)
        return;
    QPen pen(cBackgroundColor(Custom::Normal, QRect(), {}), geometry.thickness,
        dotted ? Qt::CustomDashLine : Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    if (dotted)
        pen.setDashPattern(dashPattern(geometry));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(pen);
    painter.drawLine(geometry.line);
}

void CustomLineWidget::customEvent(QEvent *event)
{
    cCustomEvent(event);
}
