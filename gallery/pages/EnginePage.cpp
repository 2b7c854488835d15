#include "EnginePage.h"

#include "parts/BoxSpecimens.h"
#include "parts/Card.h"
#include "parts/Roomy.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomLineEdit.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>

#include <QtCore/QEvent>
#include <QtCore/QMetaEnum>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QGridLayout>

namespace {

constexpr int Gap = 12;
constexpr int Example_Gap = 8;
constexpr QSize Swatch_Size(24, 24);
constexpr QSize Preview_Size(216, 144);
constexpr int Flag_Columns = 3;
const QLatin1String FlagPrefix("Param"); // of each flag's name

struct Example
{
    const char *caption;
    AttributeQuery query;
};

const QVector<Example> &examples()
{
    const auto text = [](const char *words) { return QString::fromLatin1(words); };
    static const QVector<Example> list = {
        { QT_TRANSLATE_NOOP("EnginePage", "From a selector"),
            { text("CustomPushButton"), {}, text("GrayWhite"), {}, text("FontColor"), Custom::Hover } },
        { QT_TRANSLATE_NOOP("EnginePage", "From Default"),
            { text("CustomPushButton"), {}, text("GrayWhite"), {}, text("BorderRadius:AllCorner"), Custom::Normal } },
        { QT_TRANSLATE_NOOP("EnginePage", "Fallback to Normal"),
            { text("CustomPushButton"), {}, text("LittleBase"), {}, text("FontSize"), Custom::Pressed } },
        { QT_TRANSLATE_NOOP("EnginePage", "Sub-selector"),
            { text("CustomCheckBox"), {}, text("Default"), { text("checked") }, text("BackgroundImage"),
                Custom::Hover } },
        { QT_TRANSLATE_NOOP("EnginePage", "Nested class"),
            { text("CustomPushButton"), text("GalleryCard"), text("Default"), {}, text("BorderRadius:AllCorner"),
                Custom::Normal } },
        { QT_TRANSLATE_NOOP("EnginePage", "Empty on purpose"),
            { text("CustomPushButton"), text("GalleryCard"), text("Default"), {}, text("Icon"), Custom::Disabled } },
    };
    return list;
}

/// Whether \p text is one of the forms of a colour, and not a path or a number.
bool isColorText(const QString &text)
{
    return text.startsWith(QLatin1Char('#')) || text.startsWith(QLatin1String("DB_COLOR_"))
        || text.startsWith(QLatin1String("rgba"), Qt::CaseInsensitive)
        || text.startsWith(QLatin1String("qlineargradient"), Qt::CaseInsensitive);
}

} // namespace

EnginePage::EnginePage(QWidget *parent) : GalleryPage(parent), m_pStatuses(new QButtonGroup(this))
{
    addQuestion();
    addAnswer();
    addControl();
    for (CustomLineEdit *field : { m_pClass, m_pParentClass, m_pSelector, m_pSubSelectors, m_pAttribute })
        connect(field, &CustomLineEdit::textChanged, this, &EnginePage::applyQuery);
    const QList<QAbstractButton *> statuses = m_pStatuses->buttons();
    for (QAbstractButton *button : statuses)
        connect(button, &QAbstractButton::clicked, this, &EnginePage::applyQuery);
    setQuery(examples().constFirst().query);
}

EnginePage::~EnginePage() = default;

void EnginePage::addQuestion()
{
    Card *card = addCard(QT_TR_NOOP("Question"),
        QT_TR_NOOP("Names are compared without regard to case. Sub-selectors are separated by commas."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(Gap);
    grid->setVerticalSpacing(Gap);
    const auto addField = [&](int line, int column, const char *caption) {
        auto *field = new CustomLineEdit(this);
        grid->addWidget(text(caption, TextLabel::Body), line, column);
        grid->addWidget(field, line, column + 1);
        return field;
    };
    m_pClass = addField(0, 0, QT_TR_NOOP("Class"));
    m_pParentClass = addField(0, 2, QT_TR_NOOP("Parent class"));
    m_pSelector = addField(1, 0, QT_TR_NOOP("Selector"));
    m_pSubSelectors = addField(1, 2, QT_TR_NOOP("Sub-selectors"));
    m_pAttribute = addField(2, 0, QT_TR_NOOP("Attribute"));
    grid->addWidget(text(QT_TR_NOOP("Status"), TextLabel::Body), 2, 2);
    grid->addWidget(createStatusChooser(), 2, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    card->add(grid);
    addExamples(card);
}

QWidget *EnginePage::createStatusChooser()
{
    auto *chooser = new QWidget(this);
    auto *layout = new QHBoxLayout(chooser);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Gap);
    for (Custom::ItemStatus status : allStatuses()) {
        auto *button = new CustomRadioButton(chooser);
        m_pStatuses->addButton(button, status);
        layout->addWidget(withStatusName(button, status));
    }
    layout->addStretch(1);
    return chooser;
}

void EnginePage::addExamples(Card *card)
{
    QList<QWidget *> buttons;
    for (const Example &example : examples()) {
        auto *button = translated(new Roomy<CustomPushButton>(this, CustomPushButton::GrayWhite), example.caption);
        connect(button, &CustomPushButton::clicked, this, [this, example] { setQuery(example.query); });
        buttons << button;
    }
    card->add(text(QT_TR_NOOP("Examples"), TextLabel::Caption));
    card->add(row(buttons, Example_Gap));
}

void EnginePage::addAnswer()
{
    Card *card = addCard(QT_TR_NOOP("Answer"));
    m_pSwatch = new BoxSpecimen(this);
    m_pSwatch->setFixedSize(Swatch_Size);
    m_pValue = new TextLabel(TextLabel::Heading, this);
    m_pValue->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pColor = new TextLabel(TextLabel::Caption, this);
    m_pOrigin = new TextLabel(TextLabel::Body, this);
    m_pOrigin->setWordWrap(true);
    card->add(row({ m_pSwatch, m_pValue, m_pColor }, Gap));
    card->add(m_pOrigin);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * Gap);
    grid->setVerticalSpacing(4);
    for (int i = 0; i < MaxSteps; ++i) {
        StepLine &line = m_steps[size_t(i)];
        line = { new TextLabel(TextLabel::Caption, this), new TextLabel(TextLabel::Caption, this),
            new TextLabel(TextLabel::Caption, this) };
        grid->addWidget(line.key, i, 0);
        grid->addWidget(line.place, i, 1);
        grid->addWidget(line.value, i, 2);
    }
    grid->setColumnStretch(2, 1);
    card->add(text(QT_TR_NOOP("The way to it"), TextLabel::Caption));
    card->add(grid);
}

void EnginePage::addControl()
{
    Card *card = addCard(QT_TR_NOOP("Live control"),
        QT_TR_NOOP(
            "The first override of an attribute empties all that the document says of it, in every status, until "
            "the document is taken anew."));
    auto *right = new QVBoxLayout;
    right->setSpacing(Gap);
    right->addWidget(text(QT_TR_NOOP("Override of the attribute in the status above"), TextLabel::Body));
    right->addLayout(createOverrideRow());
    right->addSpacing(4);
    right->addWidget(text(QT_TR_NOOP("Box features in use"), TextLabel::Body));
    right->addLayout(createFlags());
    right->addStretch(1);
    auto *layout = new QHBoxLayout;
    layout->setSpacing(2 * Gap);
    layout->addWidget(createPreview(), 0, Qt::AlignTop);
    layout->addLayout(right, 1);
    card->add(layout);
}

QWidget *EnginePage::createPreview()
{
    auto *box = new BoxSpecimen(this);
    box->cSetStyleSelector(QStringLiteral("Preview"));
    box->setFixedSize(Preview_Size);
    auto *layout = new QVBoxLayout(box);
    layout->setAlignment(Qt::AlignCenter);
    m_pPreview = box;
    return box;
}

QLayout *EnginePage::createOverrideRow()
{
    m_pOverride = new CustomLineEdit(this);
    m_pSetOverride = translated(new Roomy<CustomPushButton>(this), QT_TR_NOOP("Set"));
    auto *document = translated(
        new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), QT_TR_NOOP("Take the document anew"));
    auto *renew
        = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), QT_TR_NOOP("New control"));
    connect(m_pSetOverride, &CustomPushButton::clicked, this, [this] { setOverride(m_pOverride->text()); });
    connect(m_pOverride, &CustomLineEdit::returnPressed, this, [this] { setOverride(m_pOverride->text()); });
    connect(document, &CustomPushButton::clicked, this, &EnginePage::takeDocument);
    connect(renew, &CustomPushButton::clicked, this, &EnginePage::renewControl);
    auto *layout = new QHBoxLayout;
    layout->setSpacing(Gap);
    layout->addWidget(m_pOverride, 1);
    for (QWidget *button : std::initializer_list<QWidget *>{ m_pSetOverride, document, renew })
        layout->addWidget(button);
    return layout;
}

QLayout *EnginePage::createFlags()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(Gap);
    grid->setVerticalSpacing(8);
    const QMetaEnum names = QMetaEnum::fromType<Custom::ObjectParameter>();
    for (int i = 0; i < names.keyCount(); ++i) {
        const auto flag = Custom::ObjectParameter(names.value(i));
        auto *box = new CustomCheckBox(QString::fromLatin1(names.key(i)).mid(FlagPrefix.size()), this);
        connect(box, &CustomCheckBox::sigStateChanged, this, [this, flag](int state) {
            m_live.object->cSetParameter(flag, state == Qt::Checked);
            controlChanged();
        });
        grid->addWidget(box, i / Flag_Columns, i % Flag_Columns);
        m_lstFlags << box;
    }
    return grid;
}

void EnginePage::setQuery(const AttributeQuery &query)
{
    const QSignalBlocker blockers[] = { QSignalBlocker(m_pClass), QSignalBlocker(m_pParentClass),
        QSignalBlocker(m_pSelector), QSignalBlocker(m_pSubSelectors), QSignalBlocker(m_pAttribute) };
    Q_UNUSED(blockers)
    m_pClass->setText(query.className);
    m_pParentClass->setText(query.parentClass);
    m_pSelector->setText(query.selector);
    m_pSubSelectors->setText(query.subSelectors.join(QLatin1String(", ")));
    m_pAttribute->setText(query.attribute);
    m_pStatuses->button(query.status)->setChecked(true);
    applyQuery();
}

AttributeQuery EnginePage::query() const
{
    AttributeQuery query;
    query.className = m_pClass->text().trimmed();
    query.parentClass = m_pParentClass->text().trimmed();
    query.selector = m_pSelector->text().trimmed();
    query.subSelectors = subSelectorsOf(m_pSubSelectors->text());
    query.attribute = m_pAttribute->text().trimmed();
    query.status = Custom::ItemStatus(m_pStatuses->checkedId());
    return query;
}

QString EnginePage::value() const
{
    const AttributeQuery asked = query();
    return m_live.object->cAttributeValue(asked.attribute, asked.status, asked.subSelectors);
}

Resolution EnginePage::resolution() const
{
    return resolve(query(), m_log);
}

void EnginePage::applyQuery()
{
    const AttributeQuery asked = query();
    if (!m_live.object || asked.className != m_applied.className) {
        renewControl();
        return;
    }
    if (asked.parentClass != m_applied.parentClass) {
        m_live.object->cSetParentClassName(asked.parentClass);
        m_log.documentTaken();
    }
    if (asked.selector != m_applied.selector) {
        m_live.object->cSetStyleSelector(asked.selector);
        m_log.documentTaken();
    }
    m_applied = asked;
    controlChanged();
}

void EnginePage::renewControl()
{
    m_applied = query();
    delete m_live.widget;
    m_live = LiveControl::create(m_applied.className, tr("Sample"), m_pPreview);
    m_live.object->cSetParentClassName(m_applied.parentClass);
    m_live.object->cSetStyleSelector(m_applied.selector);
    m_log = OverrideLog();
    m_pPreview->layout()->addWidget(m_live.widget);
    m_live.widget->show();
    controlChanged();
}

void EnginePage::setOverride(const QString &value)
{
    const AttributeQuery asked = query();
    if (asked.attribute.isEmpty())
        return;
    m_live.object->cSetAttributeValue(asked.attribute, value, asked.status, asked.subSelectors);
    m_log.set(asked, value);
    controlChanged();
}

void EnginePage::takeDocument()
{
    m_live.object->cResetAllValue();
    m_log.documentTaken();
    controlChanged();
}

void EnginePage::controlChanged()
{
    // The rounded shape of a button is made when its size changes, and an override may have changed the radius.
    if (qobject_cast<CustomPushButton *>(m_live.widget))
        m_live.object->cResizeEvent();
    m_live.widget->updateGeometry();
    m_live.widget->update();
    showAnswer();
}

void EnginePage::showAnswer()
{
    const AttributeQuery asked = query();
    const Resolution way = resolve(asked, m_log);
    showValue();
    showSteps(asked, way);
    m_pOrigin->setText(origin(asked, way));
    m_pSetOverride->setEnabled(!asked.attribute.isEmpty());
    const QMetaEnum flags = QMetaEnum::fromType<Custom::ObjectParameter>();
    for (int i = 0; i < m_lstFlags.size(); ++i)
        m_lstFlags.at(i)->setChecked(m_live.object->cHasParameter(Custom::ObjectParameter(flags.value(i))));
}

void EnginePage::showValue()
{
    const QString answer = value();
    const bool isColor = isColorText(answer);
    m_pValue->setText(answer.isEmpty() ? tr("(no value)") : answer);
    m_pSwatch->setVisible(isColor);
    m_pColor->setVisible(isColor);
    if (!isColor)
        return;
    m_pSwatch->cSetBackgroundColor(answer);
    m_pSwatch->update();
    m_pColor->setText(Custom::brush2String(Custom::string2Brush(answer)));
}

void EnginePage::showSteps(const AttributeQuery &query, const Resolution &resolution)
{
    for (int i = 0; i < MaxSteps; ++i) {
        const StepLine &line = m_steps[size_t(i)];
        const bool used = i < resolution.steps.size();
        for (TextLabel *label : { line.key, line.place, line.value })
            label->setVisible(used);
        if (!used)
            continue;
        const ResolutionStep &step = resolution.steps.at(i);
        line.key->setText(step.key);
        line.place->setText(placeName(step.place, query));
        if (step.wiped)
            line.value->setText(tr("emptied by the first override"));
        else
            line.value->setText(step.value.isEmpty() ? QStringLiteral("\u2013") : step.value);
    }
}

QString EnginePage::placeName(Place place, const AttributeQuery &query) const
{
    switch (place) {
    case Place::Override:
        return tr("own override");
    case Place::Selector:
        return tr("document, %1").arg(query.selector);
    case Place::DefaultSelector:
        break;
    }
    return tr("document, %1").arg(QStringLiteral("Default"));
}

QString EnginePage::origin(const AttributeQuery &query, const Resolution &resolution) const
{
    if (!resolution.found)
        return tr("It stands nowhere on the way.");
    const ResolutionStep &last = resolution.steps.constLast();
    QString words = tr("Found at: %1.").arg(placeName(last.place, query));
    if (resolution.fellBack(query))
        words += QLatin1Char(' ') + tr("%1 has none, so that of Normal counts.").arg(statusName(query.status));
    if (resolution.isEmptyWord())
        words += QLatin1Char(' ') + tr("\"#Empty#\" says that there is no value, and ends the search.");
    return words;
}

void EnginePage::retranslate()
{
    GalleryPage::retranslate();
    if (auto *button = qobject_cast<QAbstractButton *>(m_live.widget))
        button->setText(tr("Sample"));
    showAnswer();
}

void EnginePage::customEvent(QEvent *event)
{
    GalleryPage::customEvent(event);
    if (int(event->type()) != ChangeSkinEvent::EventType)
        return;
    m_log.documentTaken();
    // Later, when the live control has been told as well.
    QMetaObject::invokeMethod(this, &EnginePage::controlChanged, Qt::QueuedConnection);
}
