#include "SlidersPage.h"

#include "parts/Card.h"
#include "parts/LiveText.h"
#include "parts/Roomy.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomDotSlider.h>
#include <Zanthic/CustomProcessSlider.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomSlider.h>
#include <Zanthic/CustomTwoHandleSlider.h>

#include <QtCore/QEvent>
#include <QtCore/QMetaEnum>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace {

constexpr int Slider_Width = 264;
constexpr int Value_Start = 40;
constexpr int Large_Maximum = 60000; // which turns the stages on
constexpr int Large_Start = 4000;
constexpr int Step = 10;
constexpr int Vertical_Height = 96;

template <class Slider>
Slider *sized(Slider *slider)
{
    slider->setFixedWidth(Slider_Width);
    return slider;
}

CustomDrawSlider *newSlider(QWidget *parent, qint64 value = Value_Start)
{
    auto *slider = sized(new CustomDrawSlider(parent));
    slider->cSetValue(value);
    return slider;
}

CustomDrawSlider *newDotSlider(QWidget *parent)
{
    auto *slider = sized(new CustomDotSlider(parent));
    slider->cSetSignleStep(25); // so that it snaps to the five dots
    slider->cSetValue(50);
    return slider;
}

CustomTwoHandleSlider *newRange(QWidget *parent)
{
    auto *slider = sized(new CustomTwoHandleSlider(parent));
    slider->cInitValue(20, 70);
    return slider;
}

CustomProcessSlider *newProcess(QWidget *parent, bool marker = true)
{
    auto *slider = sized(new CustomProcessSlider(parent));
    slider->cInitValue(65, 30);
    slider->cSetShowDot(marker);
    return slider;
}

} // namespace

SlidersPage::SlidersPage(QWidget *parent) : GalleryPage(parent)
{
    addKinds();
    addTexts();
    addValues();
    addRange();
    addSheetSliders();
}

SlidersPage::~SlidersPage() = default;

void SlidersPage::addKinds()
{
    Card *card = addCard(QT_TR_NOOP("Kinds and looks"),
        QT_TR_NOOP("Each row is a kind, each column a selector of the style document; the last one is disabled."));
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(24);
    table->setVerticalSpacing(12);
    using Create = std::function<CustomDrawSlider *()>;
    const QPair<const char *, Create> kinds[] = {
        { QT_TR_NOOP("One handle"), [this] { return newSlider(this); } },
        { QT_TR_NOOP("Levels"), [this] { return newDotSlider(this); } },
        { QT_TR_NOOP("Two handles"), [this] { return newRange(this); } },
        { QT_TR_NOOP("With a marker"), [this] { return newProcess(this); } },
    };
    const QMetaEnum selectors = QMetaEnum::fromType<Custom::CommonStyleSelector>();
    const int disabled = selectors.keyCount();
    for (int i = 0; i < disabled; ++i)
        table->addWidget(plainText(QString::fromLatin1(selectors.key(i)), TextLabel::Caption), 0, i + 1);
    table->addWidget(statusLabel(Custom::Disabled), 0, disabled + 1);
    int line = 0;
    for (const auto &[name, create] : kinds) {
        table->addWidget(text(name, TextLabel::Body), ++line, 0);
        for (int i = 0; i <= disabled; ++i) {
            CustomDrawSlider *slider = create();
            slider->setMinimumWidth(0);
            slider->setMaximumWidth(QWIDGETSIZE_MAX);
            slider->cSetStyleSelector(QString::fromLatin1(i < disabled ? selectors.key(i) : selectors.key(0)));
            slider->setEnabled(i < disabled);
            table->addWidget(slider, line, i + 1);
            table->setColumnStretch(i + 1, 1);
        }
    }
    card->add(table);
}

void SlidersPage::addTexts()
{
    Card *card = addCard(QT_TR_NOOP("Labels, tips and direction"),
        QT_TR_NOOP("Labels stand beside the groove or below it; a tip above the handle shows its value."));
    m_pBeside = newSlider(this);
    m_pBelow = newSlider(this);
    auto *tip = newSlider(this);
    tip->cSetShowToolTip(true);
    auto *reverse = newSlider(this);
    reverse->cSetReverse(true);
    auto *marked = newProcess(this);
    auto *unmarked = newProcess(this, false);
    card->add(row({ captioned(m_pBeside, QT_TR_NOOP("labels beside")), captioned(m_pBelow, QT_TR_NOOP("labels below")),
        captioned(tip, QT_TR_NOOP("a tip")) }));
    card->add(row({ captioned(reverse, QT_TR_NOOP("the other way round")), captioned(marked, QT_TR_NOOP("a marker")),
        captioned(unmarked, QT_TR_NOOP("without its marker")) }));
}

LiveText *SlidersPage::valueText(CustomDrawSlider *slider, std::function<QString()> words)
{
    auto *label = new LiveText(TextLabel::Body, std::move(words), this);
    connect(slider, &CustomDrawSlider::valueChanged, label, &LiveText::refresh);
    return label;
}

QWidget *SlidersPage::withWords(QWidget *slider, QWidget *words)
{
    auto *holder = new QWidget(this);
    auto *layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider, 1);
    layout->addWidget(words, 0, Qt::AlignLeft);
    return holder;
}

void SlidersPage::addValues()
{
    Card *card = addCard(QT_TR_NOOP("Values"),
        QT_TR_NOOP("A large range is staged: a third of the track each up to 5000, to 50000, and to the end."));
    auto *staged = newSlider(this, Large_Start);
    staged->cSetRange(0, Large_Maximum);
    staged->setObjectName(QStringLiteral("staged"));
    auto *steps = newSlider(this);
    steps->cSetSignleStep(Step);
    auto *counted = newSlider(this);
    auto *counts
        = valueText(counted, [this] { return tr("Values: %1, releases: %2").arg(m_nValues).arg(m_nReleases); });
    connect(counted, &CustomDrawSlider::valueChanged, counts, [this, counts] {
        ++m_nValues;
        counts->refresh();
    });
    connect(counted, &CustomDrawSlider::sliderRelease, counts, [this, counts] {
        ++m_nReleases;
        counts->refresh();
    });
    auto *stagedText = valueText(staged, [staged] { return tr("0 to 60000: %1").arg(staged->cValue()); });
    stagedText->setObjectName(QStringLiteral("stagedText"));
    card->add(row({ withWords(staged, stagedText),
        withWords(steps, valueText(steps, [steps] { return tr("in steps of 10: %1").arg(steps->cValue()); })),
        withWords(counted, counts) }));
}

void SlidersPage::addRange()
{
    Card *card = addCard(
        QT_TR_NOOP("A range"), QT_TR_NOOP("The buttons move the handle that was touched last. The handles may cross."));
    CustomTwoHandleSlider *range = newRange(this);
    LiveText *words = valueText(
        range, [range] { return tr("From %1 to %2").arg(range->cLittleValue()).arg(range->cLargeValue()); });
    auto *down = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), QT_TR_NOOP("Less"));
    auto *up = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), QT_TR_NOOP("More"));
    // Steps from code tell nothing.
    connect(down, &CustomPushButton::clicked, words, [range, words] {
        range->cDecreaseCurrentHandle();
        words->refresh();
    });
    connect(up, &CustomPushButton::clicked, words, [range, words] {
        range->cIncreaseCurrentHandle();
        words->refresh();
    });
    card->add(row({ range, down, up, words }, 12));
}

void SlidersPage::addSheetSliders()
{
    Card *card = addCard(QT_TR_NOOP("Under a style sheet"),
        QT_TR_NOOP("CustomSlider is Qt's own slider: it takes keys and the wheel, and it may stand upright."));
    QList<QWidget *> sliders;
    for (bool enabled : { true, false }) {
        auto *slider = new CustomSlider(Qt::Horizontal, this);
        slider->setFixedWidth(Slider_Width);
        slider->setValue(Value_Start);
        slider->setEnabled(enabled);
        m_lstSheetSliders << slider;
        sliders << captioned(slider, enabled ? QT_TR_NOOP("horizontal") : QT_TR_NOOP("disabled"));
    }
    auto *vertical = new CustomSlider(this);
    vertical->setFixedHeight(Vertical_Height);
    vertical->setValue(Value_Start);
    m_lstSheetSliders << vertical;
    sliders << captioned(vertical, QT_TR_NOOP("vertical"));
    card->add(row(sliders));
}

void SlidersPage::retranslate()
{
    GalleryPage::retranslate();
    m_pBeside->cSetShowTextTip(true, { tr("Quiet"), tr("Loud") }, CustomDrawSlider::TextBeside);
    m_pBelow->cSetShowTextTip(true, { tr("Dry"), tr("Moist"), tr("Wet") }, CustomDrawSlider::TextBelow);
}

void SlidersPage::customEvent(QEvent *event)
{
    if (int(event->type()) != ChangeSkinEvent::EventType)
        return;
    for (CustomSlider *slider : qAsConst(m_lstSheetSliders))
        slider->setStyleSheet(Custom::styleSheet(Custom::SheetSlider)); // which it doesn't do by itself
}
