#include "ChecksPage.h"

#include "parts/Card.h"
#include "parts/Roomy.h"
#include "parts/StatusSpecimen.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace {

QString selectorName(CustomCheckBox::StyleSelector selector)
{
    return QString::fromLatin1(QMetaEnum::fromType<CustomCheckBox::StyleSelector>().valueToKey(selector));
}

constexpr Qt::Alignment CellAlignment = Qt::Alignment(Qt::AlignLeft) | Qt::AlignVCenter;

} // namespace

ChecksPage::ChecksPage(QWidget *parent) : GalleryPage(parent)
{
    addBoxes();
    addSwitches();
    addRadioButtons();
    addSignals();
}

ChecksPage::~ChecksPage() = default;

void ChecksPage::addBoxes()
{
    Card *card = addCard(
        QT_TR_NOOP("Check boxes"), QT_TR_NOOP("Only the indicator reacts to the mouse, not the text beside it."));
    QGridLayout *table = statusTable(true);
    for (Selector selector : { CustomCheckBox::Default, CustomCheckBox::GrayWhite, CustomCheckBox::DarkBlack })
        addStates(table, selector, QT_TR_NOOP("Option"));
    card->add(table);
}

void ChecksPage::addSwitches()
{
    Card *card = addCard(QT_TR_NOOP("Switches"), QT_TR_NOOP("A switch is a check box with another selector."));
    QGridLayout *table = statusTable(true);
    for (Selector selector : { CustomCheckBox::GraySwitch, CustomCheckBox::DarkSwitch })
        addStates(table, selector, nullptr);
    card->add(table);
}

void ChecksPage::addStates(QGridLayout *table, Selector selector, const char *text)
{
    for (Qt::CheckState state : { Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked }) {
        const int line = table->rowCount();
        int column = 1;
        const auto place = [&](CustomCheckBox *box) {
            box->setTristate(state == Qt::PartiallyChecked);
            box->setCheckState(state);
            table->addWidget(text ? translated(box, text) : box, line, column++, CellAlignment);
        };
        for (Custom::ItemStatus status : allStatuses())
            place(new CheckBoxSpecimen(status, this, selector));
        auto *live = new CustomCheckBox(this, selector);
        table->addWidget(
            plainText(selectorName(selector) + QLatin1String(", ") + live->cSuffixString(state), TextLabel::Body), line,
            0);
        place(live);
    }
}

void ChecksPage::addRadioButtons()
{
    Card *card = addCard(QT_TR_NOOP("Radio buttons"), QT_TR_NOOP("All of a radio button reacts, its text as well."));
    QGridLayout *table = statusTable(true);
    for (bool checked : { false, true }) {
        const int line = table->rowCount();
        int column = 1;
        for (Custom::ItemStatus status : allStatuses()) {
            auto *specimen = new RadioButtonSpecimen(status, this);
            specimen->setAutoExclusive(false);
            specimen->setChecked(checked);
            table->addWidget(translated(specimen, QT_TR_NOOP("Choice")), line, column++, CellAlignment);
        }
        auto *live = new CustomRadioButton(this);
        live->setChecked(checked);
        table->addWidget(plainText(live->cSuffixString(checked), TextLabel::Body), line, 0);
        table->addWidget(translated(live, checked ? QT_TR_NOOP("This one") : QT_TR_NOOP("Or that one")), line, column,
            CellAlignment);
    }
    card->add(table);
}

void ChecksPage::addSignals()
{
    Card *card = addCard(QT_TR_NOOP("The user's changes"),
        QT_TR_NOOP("sigStateChanged() tells of clicks alone; a change from code is counted by nobody."));
    m_pCounted = new CustomCheckBox(this);
    m_pCounted->setTristate(true);
    m_pChanges = new TextLabel(TextLabel::Body, this);
    auto *fromCode = translated(new Roomy<CustomPushButton>(this), QT_TR_NOOP("Change from code"));
    connect(m_pCounted, &CustomCheckBox::sigStateChanged, this, [this] {
        ++m_nChanges;
        showChanges();
    });
    connect(fromCode, &CustomPushButton::clicked, this, [this] { m_pCounted->setChecked(!m_pCounted->isChecked()); });
    card->add(row({ translated(m_pCounted, QT_TR_NOOP("Three states")), fromCode, m_pChanges }));
}

void ChecksPage::showChanges()
{
    m_pChanges->setText(tr("Changes by the user: %1").arg(m_nChanges));
}

void ChecksPage::retranslate()
{
    GalleryPage::retranslate();
    showChanges();
}
