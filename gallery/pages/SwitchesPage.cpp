#include "SwitchesPage.h"

#include "parts/Card.h"
#include "parts/LiveText.h"
#include "parts/Roomy.h"

#include <Zanthic/CustomDotSelector.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomSwitchButton.h>

#include <QtCore/QMetaEnum>
#include <QtCore/QTimer>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

#include <memory>

namespace {

constexpr QSize Segment_Size(88, 32);
constexpr int DotRow_Width = 160;
constexpr int Poll_Interval = 100; // ms

const QVector<const char *> oneName = { QT_TRANSLATE_NOOP("SwitchesPage", "All") };
const QVector<const char *> twoNames
    = { QT_TRANSLATE_NOOP("SwitchesPage", "Before"), QT_TRANSLATE_NOOP("SwitchesPage", "After") };
const QVector<const char *> otherNames
    = { QT_TRANSLATE_NOOP("SwitchesPage", "Left"), QT_TRANSLATE_NOOP("SwitchesPage", "Right") };
const QVector<const char *> fiveNames = { QT_TRANSLATE_NOOP("SwitchesPage", "Day"),
    QT_TRANSLATE_NOOP("SwitchesPage", "Week"), QT_TRANSLATE_NOOP("SwitchesPage", "Month"),
    QT_TRANSLATE_NOOP("SwitchesPage", "Quarter"), QT_TRANSLATE_NOOP("SwitchesPage", "Year") };

QStringList translatedNames(const QVector<const char *> &names)
{
    QStringList words;
    for (const char *name : names)
        words << SwitchesPage::tr(name);
    return words;
}

CustomDotSelector *newDots(QWidget *parent, int number, int current)
{
    auto *selector = new CustomDotSelector(parent);
    selector->cSetDotNumber(number);
    selector->cSetCurrentDot(current);
    return selector;
}

} // namespace

SwitchesPage::SwitchesPage(QWidget *parent) : GalleryPage(parent)
{
    addLooks();
    addChoices();
    addDots();
    addCustomDots();
}

SwitchesPage::~SwitchesPage() = default;

CustomSwitchButton *SwitchesPage::newSwitch(const QVector<const char *> &names, const QString &selector)
{
    auto *control = new CustomSwitchButton(this);
    control->cSetStyleSelector(selector);
    control->cSetButtonNames(translatedNames(names));
    control->setFixedSize(Segment_Size.width() * names.size(), Segment_Size.height());
    m_switches << Switch{ control, names };
    return control;
}

void SwitchesPage::addLooks()
{
    Card *card
        = addCard(QT_TR_NOOP("Looks"), QT_TR_NOOP("Inner corners are square, so that a row reads as one piece."));
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(24);
    table->setVerticalSpacing(12);
    table->addWidget(text(QT_TR_NOOP("Live, to try"), TextLabel::Caption), 0, 1);
    table->addWidget(statusLabel(Custom::Disabled), 0, 2);
    const QMetaEnum selectors = QMetaEnum::fromType<Custom::CommonStyleSelector>();
    for (int i = 0; i < selectors.keyCount(); ++i) {
        const QString selector = QString::fromLatin1(selectors.key(i));
        table->addWidget(plainText(selector, TextLabel::Body), i + 1, 0);
        CustomSwitchButton *live = newSwitch(fiveNames, selector);
        live->cSetCheckIndex(1);
        CustomSwitchButton *disabled = newSwitch(twoNames, selector);
        disabled->setEnabled(false);
        table->addWidget(live, i + 1, 1);
        table->addWidget(disabled, i + 1, 2);
    }
    table->setColumnStretch(3, 1);
    card->add(table);
}

void SwitchesPage::addChoices()
{
    Card *card = addCard(QT_TR_NOOP("Choices"),
        QT_TR_NOOP("A click is told also where the button was checked already. The names can change."));
    const auto withIndex = [this](CustomSwitchButton *control) {
        const auto clicks = std::make_shared<int>(0);
        auto *words = new LiveText(
            TextLabel::Caption,
            [control, clicks] { return tr("Checked: %1, clicks: %2").arg(control->cCheckedIndex()).arg(*clicks); },
            this);
        words->setObjectName(control->objectName() + QLatin1String("Text"));
        connect(control, &CustomSwitchButton::checkedChanged, words, [words, clicks] {
            ++*clicks;
            words->refresh();
        });
        return captioned(control, words);
    };
    const QString standard = QStringLiteral("Default");
    m_pRenamed = newSwitch(twoNames, standard);
    m_pRenamed->setObjectName(QStringLiteral("choice"));
    auto *rename = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), QT_TR_NOOP("Rename"));
    connect(rename, &CustomPushButton::clicked, this, [this] {
        m_bRenamed = !m_bRenamed;
        retranslate();
    });
    card->add(row({ withIndex(newSwitch(oneName, standard)), withIndex(m_pRenamed), rename }));
}

QWidget *SwitchesPage::withNumber(CustomDotSelector *selector)
{
    auto *words = new LiveText(
        TextLabel::Caption, [selector] { return tr("Current: %1").arg(selector->cCurrentDot()); }, this);
    words->setObjectName(selector->objectName() + QLatin1String("Text"));
    auto *timer = new QTimer(words); // since no signal tells of a click
    connect(timer, &QTimer::timeout, words, &LiveText::refresh);
    timer->start(Poll_Interval);
    return captioned(selector, words);
}

void SwitchesPage::addDots()
{
    Card *card = addCard(QT_TR_NOOP("Dots"), QT_TR_NOOP("Click a dot. The line is as long as the room that there is."));
    QList<QWidget *> selectors;
    for (int number : { 1, 3, 5, 8 }) {
        CustomDotSelector *selector = newDots(this, number, number / 2);
        selector->setObjectName(QStringLiteral("dots%1").arg(number));
        selector->setFixedSize(DotRow_Width, selector->sizeHint().height());
        selectors << withNumber(selector);
    }
    card->add(row(selectors, 48));
}

void SwitchesPage::addCustomDots()
{
    Card *card = addCard(QT_TR_NOOP("Dots of another look"), QT_TR_NOOP("Colours, radii and the line can be set."));
    CustomDotSelector *colors = newDots(this, 4, 1);
    colors->cSetDotColor(QStringLiteral("#C98A2B"), QStringLiteral("#2E9E5B"));
    colors->cSetLintColor(QStringLiteral("#2E9E5B"));
    CustomDotSelector *large = newDots(this, 4, 2);
    large->cSetDotRadius(8, 11);
    CustomDotSelector *small = newDots(this, 4, 0);
    small->cSetDotRadius(6, 4);
    small->cSetLineThickness(6);
    QList<QWidget *> selectors;
    for (CustomDotSelector *selector : { colors, large, small }) {
        selector->setFixedSize(DotRow_Width, selector->sizeHint().height());
        selectors << withNumber(selector);
    }
    card->add(row(selectors, 48));
}

void SwitchesPage::retranslate()
{
    GalleryPage::retranslate();
    for (const Switch &one : qAsConst(m_switches)) {
        const bool renamed = one.control == m_pRenamed && m_bRenamed;
        one.control->cRenameButtons(translatedNames(renamed ? otherNames : one.names));
    }
}
