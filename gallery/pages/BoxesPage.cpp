#include "BoxesPage.h"

#include "parts/BoxSpecimens.h"
#include "parts/Card.h"
#include "parts/SkinColors.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace {

QString pixels(int number)
{
    return QStringLiteral("%1 px").arg(number);
}

/// The library's own text of a gradient between two points of the unit square.
QString gradientText(const QPointF &from, const QPointF &to, const QStringList &stops)
{
    QString text = QStringLiteral("qlineargradient(x1:%1;y1:%2;x2:%3;y2:%4**")
                       .arg(from.x())
                       .arg(from.y())
                       .arg(to.x())
                       .arg(to.y());
    for (int i = 0; i < stops.size(); ++i)
        text += QStringLiteral("stop:%1 %2;").arg(double(i) / (stops.size() - 1)).arg(stops.at(i));
    return text + QLatin1Char(')');
}

} // namespace

BoxesPage::BoxesPage(QWidget *parent) : GalleryPage(parent)
{
    addWidths();
    addRadii();
    addEdges();
    addGradients();
    addImages();
    addStyles();
}

BoxesPage::~BoxesPage() = default;

void BoxesPage::addWidths()
{
    Card *card = addCard(QT_TR_NOOP("Border widths"));
    QList<QWidget *> boxes;
    for (int width : { 0, 1, 2, 4, 8 }) {
        auto *box = new BoxSpecimen(this);
        box->cSetBorderWidth(width);
        box->cSetBorderRadius(0);
        boxes << labelled(box, pixels(width));
    }
    auto *uneven = new BoxSpecimen(this);
    uneven->cSetBorderRadius(0);
    uneven->cSetBorderWidth(12, Custom::Left);
    uneven->cSetBorderWidth(4, Custom::Top);
    uneven->cSetBorderWidth(2, Custom::Right);
    uneven->cSetBorderWidth(8, Custom::Bottom);
    boxes << labelled(uneven, QStringLiteral("12, 4, 2, 8 px"));
    card->add(row(boxes));
}

void BoxesPage::addRadii()
{
    Card *card = addCard(QT_TR_NOOP("Corner radii"),
        QT_TR_NOOP("Each corner has its own radius. A pair of radii that doesn't fit into its side is dropped."));
    QList<QWidget *> boxes;
    for (int radius : { 0, 4, 8, 24 }) {
        auto *box = new BoxSpecimen(this);
        box->cSetBorderRadius(radius);
        boxes << labelled(box, pixels(radius));
    }
    auto *leaf = new BoxSpecimen(this);
    leaf->cSetBorderRadius(0);
    leaf->cSetBorderRadius(32, Custom::LeftTop);
    leaf->cSetBorderRadius(32, Custom::RightBottom);
    boxes << captioned(leaf, QT_TR_NOOP("two corners"));
    auto *tooLarge = new BoxSpecimen(this);
    tooLarge->cSetBorderRadius(64);
    boxes << captioned(tooLarge, QT_TR_NOOP("64 px, too large"));
    card->add(row(boxes));
}

void BoxesPage::addEdges()
{
    Card *card = addCard(QT_TR_NOOP("A colour for each edge"),
        QT_TR_NOOP("Edges meet in a mitre, and on a round corner the colour changes on the diagonal."));
    const struct
    {
        const char *caption;
        int width;
        int radius;
    } cases[] = {
        { QT_TR_NOOP("thin"), 2, 0 },
        { QT_TR_NOOP("mitred"), 10, 0 },
        { QT_TR_NOOP("rounded"), 6, 20 },
    };
    QList<QWidget *> boxes;
    for (const auto &one : cases) {
        auto *box = new BoxSpecimen(this);
        box->cSetBorderWidth(one.width);
        box->cSetBorderRadius(one.radius);
        box->cSetBorderColor(QStringLiteral("#d9480f"), Custom::Left);
        box->cSetBorderColor(QStringLiteral("#2b8a3e"), Custom::Right);
        box->cSetBorderColor(QStringLiteral("#1971c2"), Custom::Top);
        box->cSetBorderColor(QStringLiteral("#9c36b5"), Custom::Bottom);
        boxes << captioned(box, one.caption);
    }
    auto *underlined = new BoxSpecimen(this);
    underlined->cSetBorderRadius(0);
    underlined->cSetBorderWidth(0);
    underlined->cSetBorderWidth(3, Custom::Bottom);
    underlined->cSetBorderColor(SkinColor::Accent);
    boxes << captioned(underlined, QT_TR_NOOP("one edge only"));
    card->add(row(boxes));
}

void BoxesPage::addGradients()
{
    Card *card = addCard(QT_TR_NOOP("Gradients"),
        QT_TR_NOOP("A gradient is a text like any colour; its stops may name colours of the skin."));
    const QString accent = SkinColor::Accent;
    const QString surface = SkinColor::Surface;
    const QString warm = QStringLiteral("#f08c00");
    const QString right = gradientText({ 0, 0 }, { 1, 0 }, { accent, surface });
    const struct
    {
        const char *caption;
        QString fill;
    } cases[] = {
        { QT_TR_NOOP("to the right"), right },
        { QT_TR_NOOP("downwards"), gradientText({ 0, 0 }, { 0, 1 }, { surface, accent }) },
        { QT_TR_NOOP("diagonal"), gradientText({ 0, 0 }, { 1, 1 }, { accent, surface }) },
        { QT_TR_NOOP("three stops"), gradientText({ 0, 0 }, { 1, 0 }, { accent, surface, warm }) },
    };
    QList<QWidget *> boxes;
    for (const auto &one : cases) {
        auto *box = new BoxSpecimen(this);
        box->cSetBackgroundColor(one.fill);
        boxes << captioned(box, one.caption);
    }
    auto *border = new BoxSpecimen(this);
    border->cSetBorderWidth(8);
    border->cSetBorderRadius(0);
    border->cSetBorderColor(gradientText({ 0, 0 }, { 1, 1 }, { accent, warm }));
    boxes << captioned(border, QT_TR_NOOP("in the border"));
    card->add(row(boxes));
}

void BoxesPage::addImages()
{
    Card *card = addCard(QT_TR_NOOP("Border image and colour rectangles"),
        QT_TR_NOOP("A border image is cut into nine and stretched. Colour rectangles stop at the rounded outline."));
    QList<QWidget *> boxes;
    for (const QSize &size : { BoxSpecimen::Size, QSize(232, 72) }) {
        auto *box = new BoxSpecimen(this);
        box->setFixedSize(size);
        box->cSetBorderWidth(16);
        box->cSetBorderRadius(0);
        box->cSetBackgroundColor(SkinColor::Transparent);
        box->cSetBorderImage(QStringLiteral(":/Gallery/images/frame.png"));
        boxes << captioned(box, QT_TR_NOOP("border image"));
    }
    boxes << captioned(new ColorRectSpecimen(this), QT_TR_NOOP("colour rectangles"));
    card->add(row(boxes));
}

void BoxesPage::addStyles()
{
    Card *card = addCard(QT_TR_NOOP("Border styles"),
        QT_TR_NOOP("Themed boxes have solid borders. The other styles are there for Custom::cDrawBorder()."));
    const QMetaEnum names = QMetaEnum::fromType<Custom::BorderStyle>();
    constexpr int Columns = 5;
    constexpr int Radius = 16;
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(16);
    for (int style = Custom::BorderDotted; style <= Custom::BorderOutset; ++style) {
        auto *pair = new QWidget(this);
        auto *layout = new QHBoxLayout(pair);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(8);
        for (int radius : { 0, Radius })
            layout->addWidget(new BorderStyleSpecimen(Custom::BorderStyle(style), radius, pair));
        const int index = style - Custom::BorderDotted;
        grid->addWidget(labelled(pair, QString::fromLatin1(names.valueToKey(style))), index / Columns, index % Columns);
    }
    grid->setColumnStretch(Columns, 1);
    card->add(grid);
}
