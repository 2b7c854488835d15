#include <Zanthic/CustomLineEdit.h>

#include "controls/CustomLineEdit_p.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomPushButton.h>

#include <QtCore/QPointer>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QToolTip>

namespace {

constexpr int kButtonMargin = 1; // right of the button
constexpr qreal kPlaceholderOpacity = 0.65;
const QLatin1String g_strReplaceText("*PaddingLeft*");

QString matchLineEditSelector(CustomLineEdit::StyleSelector selector)
{
    switch (selector) {
    case CustomLineEdit::Default:
        return QStringLiteral("Default");
    case CustomLineEdit::DarkBlack:
        return QStringLiteral("DarkBlack");
    case CustomLineEdit::GrayWhite:
        return QStringLiteral("GrayWhite");
    }
    return QString();
}

void dimPlaceholder(QLineEdit *edit)
{
    QPalette colors = edit->palette();
    for (const QPalette::ColorGroup group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
        QColor color = colors.color(group, QPalette::Text);
        color.setAlphaF(color.alphaF() * kPlaceholderOpacity);
        colors.setColor(group, QPalette::PlaceholderText, color);
    }
    edit->setPalette(colors);
}

QString getLineEditStyleSheet(bool enableSearch)
{
    QString sheet = Custom::styleSheet(Custom::SheetLineEdit);
    return sheet.replace(g_strReplaceText, QLatin1String(enableSearch ? "41" : "0"), Qt::CaseSensitive);
}

} // namespace

CustomLineEditPrivate::CustomLineEditPrivate(CustomLineEdit::StyleSelector selector, CustomLineEdit *owner)
    : searchButton(new CustomPushButton(owner, CustomPushButton::Default)), q(owner)
{
    searchButton->cSetStyleSelector(matchLineEditSelector(selector));
    searchButton->setVisible(enableSearch);
    searchButton->setCursor(Qt::ArrowCursor);
    searchButton->cSetParentClassName(QString::fromLatin1(q->metaObject()->className()));
    QObject::connect(searchButton.data(), &CustomPushButton::clicked, q, &CustomLineEdit::cSigSearchClicked);

    auto *layout = static_cast<QBoxLayout *>(Custom::createLayout(Qt::Horizontal));
    layout->addStretch(0);
    layout->addWidget(searchButton);
    layout->addSpacing(kButtonMargin);
    q->setLayout(layout);

    q->cSetStyleSelector(matchLineEditSelector(selector));
    updateStyleSheet();
    q->setContextMenuPolicy(Qt::NoContextMenu);
}

void CustomLineEditPrivate::updateData()
{
    if (searchButton)
        searchButton->setVisible(enableSearch);
}

void CustomLineEditPrivate::updateStyleSheet()
{
    q->setStyleSheet(getLineEditStyleSheet(enableSearch));
}

CustomLineEdit::CustomLineEdit(QWidget *parent, StyleSelector selector)
    : CustomLineEdit(QString(), parent, selector) { }

CustomLineEdit::CustomLineEdit(const QString &text, QWidget *parent, StyleSelector selector)
    : QLineEdit(text, parent), CustomQssHelper(this), d(std::make_unique<CustomLineEditPrivate>(selector, this))
{ }

CustomLineEdit::~CustomLineEdit() = default;

void CustomLineEdit::cSetEnableSearchButton(bool enable)
{
    if (!d)
        return;
    d->enableSearch = enable;
    d->updateStyleSheet();
}

void CustomLineEdit::cSetEnableIntoSelected(bool enable)
{
    if (d)
        d->enableIntoSelected = enable;
}

CustomPushButton *CustomLineEdit::getSearchButton() const
{
    return d ? d->searchButton.data() : nullptr;
}

void CustomLineEdit::cSetSearchBackImg(const QString &path, Custom::ItemStatus status)
{
    if (CustomPushButton *button = getSearchButton())
        button->cSetBackgroundImage(path, status, {});
}

void CustomLineEdit::setVisible(bool visible)
{
    if (visible && d)
        d->updateData();
    QLineEdit::setVisible(visible);
}

void CustomLineEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
}

void CustomLineEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QLineEdit::changeEvent(event);
    // The sheet has been polished anew.
    if (event->type() == QEvent::LanguageChange)
        dimPlaceholder(this);
}

void CustomLineEdit::focusInEvent(QFocusEvent *event)
{
    d->isSelected = false;
    QLineEdit::focusInEvent(event);
}

void CustomLineEdit::mousePressEvent(QMouseEvent *event)
{
    const QPointer<CustomLineEdit> self(this);
    QLineEdit::mousePressEvent(event);
    if (!self || hasSelectedText() || d->isSelected || !d->enableIntoSelected)
        return;
    d->isSelected = true;
    selectAll();
}

void CustomLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (isReadOnly()) {
        event->ignore();
        return;
    }
    cRespondHotKey(event);
    QLineEdit::keyPressEvent(event);
}

bool CustomLineEdit::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && d && d->enableSearch) {
        const CustomPushButton *button = getSearchButton();
        const auto *help = dynamic_cast<QHelpEvent *>(event);
        if (button && help && button->geometry().contains(help->pos())) {
            QToolTip::hideText(); // one that the text has brought up
            return true;
        }
    }
    const bool handled = QLineEdit::event(event);
    // The style sheet has given the placeholder the colour of a text that was entered.
    if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
        dimPlaceholder(this);
    return handled;
}

void CustomLineEdit::customEvent(QEvent *event)
{
    if (event->type() == ChangeSkinEvent::EventType)
        d->updateStyleSheet();
}
