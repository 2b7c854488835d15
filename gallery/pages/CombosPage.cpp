#include "CombosPage.h"

#include "parts/Card.h"
#include "parts/LiveText.h"
#include "parts/Roomy.h"
#include "parts/Snapshot.h"
#include "parts/StatusSpecimen.h"

#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomSpinBox.h>

#include <QtCore/QMetaEnum>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>

namespace {

constexpr int Combo_Width = 144;
constexpr int Wide_Width = 200;
constexpr int List_Extra = 24; // by which the library makes the list wider than the box
constexpr int MostCopies = 99;
constexpr int SomeDays = 0b0101;

const char *const cities[] = { QT_TRANSLATE_NOOP("CombosPage", "Amsterdam"), QT_TRANSLATE_NOOP("CombosPage", "Beijing"),
    QT_TRANSLATE_NOOP("CombosPage", "Cairo"), QT_TRANSLATE_NOOP("CombosPage", "Dakar") };

CustomComboBox *sized(CustomComboBox *combo, int width = Combo_Width)
{
    combo->setFixedWidth(width);
    return combo;
}

void fillWithCities(CustomComboBox *combo)
{
    for (const char *city : cities)
        combo->addItem(CombosPage::tr(city));
}

QMap<int, QString> days()
{
    return { { 1, CombosPage::tr("Monday") }, { 2, CombosPage::tr("Tuesday") }, { 4, CombosPage::tr("Wednesday") },
        { 8, CombosPage::tr("Thursday") } };
}

/// Sets check boxes and the button row below them.
void fillWithDays(CustomComboBox *combo)
{
    combo->cSetMultiCheckItems(days());
    combo->cAddButtonItem(CombosPage::tr("Manage days"));
}

/// The list of \p combo as it comes up.
QPixmap pictureOfList(CustomComboBox *combo)
{
    QWidget *list = combo->viewParent();
    QAbstractItemView *view = combo->view();
    view->ensurePolished();
    const QMargins margins = list->layout()->contentsMargins() + view->contentsMargins();
    int height = margins.top() + margins.bottom();
    for (int row = 0; row < combo->count(); ++row)
        height += view->sizeHintForRow(row);
    list->resize(Wide_Width + List_Extra, height);
    return list->grab();
}

} // namespace

/// What stands in the custom popup.
class CombosPage::Form : public QWidget
{
public:
    Form()
        : copies(new CustomSpinBox(this)),
          bothSides(new CustomCheckBox(this)),
          done(new Roomy<CustomPushButton>(this)),
          m_pCaption(new TextLabel(TextLabel::Body, this))
    {
        copies->setRange(1, MostCopies);
        auto *layout = new QGridLayout(this);
        layout->setContentsMargins(16, 16, 16, 16);
        layout->setHorizontalSpacing(16);
        layout->setVerticalSpacing(12);
        layout->addWidget(m_pCaption, 0, 0);
        layout->addWidget(copies, 0, 1);
        layout->addWidget(bothSides, 1, 0, 1, 2);
        layout->addWidget(done, 2, 0, 1, 2);
        retranslate();
    }

    void retranslate()
    {
        m_pCaption->setText(CombosPage::tr("Copies"));
        bothSides->setText(CombosPage::tr("Print on both sides"));
        done->setText(CombosPage::tr("Done"));
        resize(sizeHint()); // which the popup takes over
    }

    QString words() const
    {
        const QString number = CombosPage::tr("Copies: %1").arg(copies->value());
        return bothSides->isChecked() ? CombosPage::tr("%1, both sides").arg(number) : number;
    }

    CustomSpinBox *copies;
    CustomCheckBox *bothSides;
    CustomPushButton *done;

private:
    TextLabel *m_pCaption;
};

CombosPage::CombosPage(QWidget *parent) : GalleryPage(parent)
{
    addLooks();
    addPlain();
    addMultiple();
    addCustomPopup();
    addPictures();
}

CombosPage::~CombosPage() = default;

void CombosPage::addCities(CustomComboBox *combo)
{
    int item = 0;
    for (const char *city : cities) {
        combo->addItem(QString());
        addText(city, [combo, item](const QString &words) { combo->setItemText(item, words); });
        ++item;
    }
}

void CombosPage::addLooks()
{
    Card *card = addCard(QT_TR_NOOP("Looks and statuses"),
        QT_TR_NOOP("Each row is a selector of the style document, each column a status of it."));
    QGridLayout *table = statusTable(true);
    const QMetaEnum names = QMetaEnum::fromType<CustomComboBox::StyleSelector>();
    for (int i = 0; i < names.keyCount(); ++i) {
        const auto selector = CustomComboBox::StyleSelector(names.value(i));
        int column = 0;
        table->addWidget(plainText(QString::fromLatin1(names.key(i)), TextLabel::Body), i + 1, column++);
        for (Custom::ItemStatus status : allStatuses()) {
            auto *specimen = new ComboBoxSpecimen(status, this, selector);
            addCities(specimen);
            table->addWidget(sized(specimen), i + 1, column++, Qt::AlignLeft);
        }
        auto *live = sized(new CustomComboBox(this, selector));
        addCities(live);
        table->addWidget(live, i + 1, column, Qt::AlignLeft);
    }
    card->add(table);
}

void CombosPage::addPlain()
{
    Card *card = addCard(QT_TR_NOOP("Texts"), QT_TR_NOOP("The wheel over a combo box changes nothing."));
    auto *editable = sized(new CustomComboBox(this));
    editable->setEditable(true);
    auto *placeholder = sized(new CustomComboBox(this));
    placeholder->setEditable(true);
    auto *fixed = sized(new CustomComboBox(this));
    auto *disabled = sized(new CustomComboBox(this));
    disabled->setEnabled(false);
    for (CustomComboBox *combo : { editable, placeholder, fixed, disabled })
        addCities(combo);
    placeholder->setCurrentIndex(-1);
    addText(QT_TR_NOOP("Any city"),
        [placeholder](const QString &words) { placeholder->lineEdit()->setPlaceholderText(words); });
    addText(QT_TR_NOOP("City..."), [fixed](const QString &words) { fixed->cSetCustomDisplayText(words); });
    auto *chosen = new LiveText(
        TextLabel::Body, [fixed] { return tr("Chosen: %1").arg(tr(cities[qMax(0, fixed->currentIndex())])); }, this);
    connect(fixed, QOverload<int>::of(&QComboBox::currentIndexChanged), chosen, &LiveText::refresh);
    card->add(row({ captioned(editable, QT_TR_NOOP("editable")), captioned(placeholder, QT_TR_NOOP("still empty")),
        captioned(disabled, QT_TR_NOOP("disabled")), captioned(fixed, QT_TR_NOOP("always the same text")), chosen }));
}

void CombosPage::addMultiple()
{
    Card *card = addCard(QT_TR_NOOP("Several values"),
        QT_TR_NOOP("Each item is a flag; together they are the mask. The last row of the list is a button."));
    m_pMulti = sized(new CustomComboBox(this, CustomComboBox::Default, true), Wide_Width);
    m_pMulti->cSetMultiCheckValue(SomeDays);
    auto *mask = new LiveText(
        TextLabel::Body, [this] { return tr("Mask: %1").arg(m_pMulti->cGetMultiCheckValue()); }, this);
    m_pMulti->setObjectName(QStringLiteral("days"));
    mask->setObjectName(QStringLiteral("daysText"));
    auto *clicks = new LiveText(
        TextLabel::Body, [this] { return tr("Clicks on the button: %1").arg(m_nClicks); }, this);
    auto *fromCode = translated(new Roomy<CustomPushButton>(this), QT_TR_NOOP("None of them"));
    connect(m_pMulti, &CustomComboBox::sigMultiValueChanged, mask, &LiveText::refresh);
    connect(m_pMulti, &CustomComboBox::sigButtonClicked, clicks, [this, clicks] {
        ++m_nClicks;
        clicks->refresh();
    });
    connect(fromCode, &CustomPushButton::clicked, mask, [this, mask] {
        m_pMulti->cSetMultiCheckValue(0);
        mask->refresh();
    });
    card->add(row({ m_pMulti, fromCode, mask, clicks }));
}

void CombosPage::addCustomPopup()
{
    Card *card = addCard(QT_TR_NOOP("Any widget in place of the list"),
        QT_TR_NOOP("The combo box opens a form, and shows what was entered."));
    m_pPrint = sized(new CustomComboBox(this), Wide_Width);
    m_pForm = new Form;
    m_pPrint->cSetCustomPopupWidget(m_pForm);
    const auto showWords = [this] { m_pPrint->cSetCustomDisplayText(m_pForm->words()); };
    connect(m_pForm->copies, QOverload<int>::of(&QSpinBox::valueChanged), this, showWords);
    connect(m_pForm->bothSides, &CustomCheckBox::toggled, this, showWords);
    connect(m_pForm->done, &CustomPushButton::clicked, m_pPrint, &CustomComboBox::hidePopup);
    card->add(row({ m_pPrint }));
}

void CombosPage::addPictures()
{
    Card *card = addCard(QT_TR_NOOP("Open"), QT_TR_NOOP("The three popups as they come up."));
    auto *list = new Snapshot([] {
        CustomComboBox combo;
        fillWithCities(&combo);
        combo.setCurrentIndex(1);
        return pictureOfList(&combo);
    });
    auto *multi = new Snapshot([] {
        CustomComboBox combo(nullptr, CustomComboBox::Default, true);
        combo.cSetMultiCheckValue(SomeDays);
        combo.resize(Wide_Width, combo.height());
        fillWithDays(&combo);
        return pictureOfList(&combo);
    });
    auto *custom = new Snapshot([] {
        CustomComboBox combo;
        auto *form = new Form;
        combo.cSetCustomPopupWidget(form);
        CustomMainWindow *window = combo.cGetCustomPopupWindows();
        window->setFixedSize(form->sizeHint());
        return Snapshot::ofWindow(window, 0);
    });
    const QList<QWidget *> pictures = { captioned(list, QT_TR_NOOP("a list")),
        captioned(multi, QT_TR_NOOP("check boxes and a button")), captioned(custom, QT_TR_NOOP("a form")) };
    QBoxLayout *line = row(pictures);
    for (QWidget *picture : pictures)
        line->setAlignment(picture, Qt::AlignTop);
    card->add(line);
}

void CombosPage::retranslate()
{
    GalleryPage::retranslate();
    fillWithDays(m_pMulti);
    m_pForm->retranslate();
    m_pPrint->cSetCustomDisplayText(m_pForm->words());
}
