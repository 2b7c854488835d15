#include "LabelsPage.h"

#include "parts/Card.h"
#include "parts/SkinColors.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomGroupBox.h>
#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomLineWidget.h>

#include <QtWidgets/QBoxLayout>

namespace {

constexpr int Label_Height = 32;
constexpr int Elided_Width = 240;
constexpr int Line_Length = 112;
constexpr int Line_Height = 56;
constexpr QSize Dark_Size(160, 40);
constexpr int GroupBox_Width = 280;

/// A label that has taken its look already, and not only once the pointer has left it.
CustomLabel *newLabel(QWidget *parent, const char *selector = "Default")
{
    auto *label = new CustomLabel(parent);
    label->cSetStyleSelector(QLatin1String(selector));
    return label;
}

CustomLabel *withBox(CustomLabel *label)
{
    for (Custom::ObjectParameter parameter :
        { Custom::ParamBackgroundColor, Custom::ParamBorderWidth, Custom::ParamBorderRadius, Custom::ParamBorderColor })
        label->cSetParameter(parameter, true);
    label->cSetBorderWidth(1);
    label->cSetBorderRadius(4);
    label->cSetBorderColor(SkinColor::Accent);
    label->setFixedHeight(Label_Height);
    label->setAlignment(Qt::AlignCenter);
    label->setContentsMargins(8, 0, 8, 0);
    return label;
}

CustomLineWidget *newLine(CustomLineWidget::LineType type, int thickness, bool dotted, QWidget *parent)
{
    auto *line = new CustomLineWidget(parent);
    line->cSetLineType(type);
    line->cSetIsDottedLine(dotted);
    if (type == CustomLineWidget::HorizontalLine)
        line->setFixedSize(Line_Length, thickness);
    else
        line->setFixedSize(thickness, Line_Height);
    return line;
}

} // namespace

LabelsPage::LabelsPage(QWidget *parent) : GalleryPage(parent)
{
    addLooks();
    addTexts();
    addLines();
    addGroupBoxes();
}

LabelsPage::~LabelsPage() = default;

void LabelsPage::addLooks()
{
    Card *card
        = addCard(QT_TR_NOOP("Looks"), QT_TR_NOOP("A label has a look of its own while the pointer is over it."));
    auto *plain = translated(newLabel(this), QT_TR_NOOP("Plain text"));
    auto *quiet = translated(newLabel(this, "GrayWhite"), QT_TR_NOOP("Quiet text"));
    auto *dark = new CustomFrame(this);
    dark->cSetStyleSelector(QStringLiteral("DarkBlack"));
    dark->setFixedSize(Dark_Size);
    auto *strong = translated(newLabel(dark, "DarkBlack"), QT_TR_NOOP("Strong text"));
    strong->setAlignment(Qt::AlignCenter);
    (new QVBoxLayout(dark))->addWidget(strong);
    auto *framed = withBox(translated(newLabel(this), QT_TR_NOOP("With a border")));
    auto *hovered = withBox(translated(newLabel(this), QT_TR_NOOP("Point at me")));
    hovered->cSetFontColor(SkinColor::Text);
    hovered->cSetFontColor(SkinColor::SelectionText, Custom::Hover);
    hovered->cSetBackgroundColor(SkinColor::Surface);
    hovered->cSetBackgroundColor(SkinColor::Accent, Custom::Hover);
    card->add(row({ labelled(plain, QStringLiteral("Default")), labelled(quiet, QStringLiteral("GrayWhite")),
        labelled(dark, QStringLiteral("DarkBlack")), captioned(framed, QT_TR_NOOP("values of its own")),
        captioned(hovered, QT_TR_NOOP("two looks")) }));
}

void LabelsPage::addTexts()
{
    Card *card = addCard(QT_TR_NOOP("Elided texts and clicks"),
        QT_TR_NOOP("A text that is too long ends in dots. A label tells of clicks, as a button does."));
    m_pElided = newLabel(this);
    m_pElided->setFixedSize(Elided_Width, Label_Height);
    m_pClickable = withBox(newLabel(this));
    m_pClickable->setCursor(Qt::PointingHandCursor);
    connect(m_pClickable, &CustomLabel::clicked, this, [this] {
        ++m_nClicks;
        retranslate();
    });
    card->add(row({ m_pElided, m_pClickable }));
}

void LabelsPage::addLines()
{
    Card *card = addCard(QT_TR_NOOP("Lines"), QT_TR_NOOP("A line is as thick as its widget, solid or dotted."));
    for (CustomLineWidget::LineType type : { CustomLineWidget::HorizontalLine, CustomLineWidget::VerticalLine }) {
        QList<QWidget *> lines;
        for (bool dotted : { false, true }) {
            for (int thickness : { 1, 2, 4 })
                lines << captioned(newLine(type, thickness, dotted, this),
                    plainText(QStringLiteral("%1 px").arg(thickness), TextLabel::Caption));
        }
        card->add(row(lines));
    }
}

void LabelsPage::addGroupBoxes()
{
    Card *card = addCard(QT_TR_NOOP("Group boxes"),
        QT_TR_NOOP("A box that can be switched off takes its content along, and tells its number."));
    QList<QWidget *> boxes;
    for (int i = 0; i < 2; ++i) {
        auto *box = new CustomGroupBox(this);
        box->SetIndex(i);
        box->setFixedWidth(GroupBox_Width);
        box->setCheckable(i > 0);
        addText(i > 0 ? QT_TR_NOOP("To be switched") : QT_TR_NOOP("Always on"),
            [box](const QString &words) { box->setTitle(words); });
        auto *layout = new QVBoxLayout(box);
        layout->addWidget(translated(new CustomCheckBox(box), QT_TR_NOOP("First option")));
        layout->addWidget(translated(new CustomCheckBox(box), QT_TR_NOOP("Second option")));
        connect(box, &CustomGroupBox::Toggled, this, [this](int index, bool on) {
            m_nGroup = index;
            m_bGroupOn = on;
            retranslate();
        });
        boxes << box;
    }
    boxes << (m_pGroupState = new TextLabel(TextLabel::Body, this));
    card->add(row(boxes));
}

void LabelsPage::retranslate()
{
    GalleryPage::retranslate();
    m_pElided->setText(tr("The quick brown fox jumps over the lazy dog and goes on its way"));
    m_pElided->cDisplayElidedText();
    m_pClickable->setText(tr("Clicks: %1").arg(m_nClicks));
    if (m_nGroup >= 0)
        m_pGroupState->setText(
            (m_bGroupOn ? tr("Box %1 was switched on") : tr("Box %1 was switched off")).arg(m_nGroup));
}
