#include <Zanthic/CustomComboBox.h>

#include "controls/CustomComboBox_p.h"
#include "platform/KorvInterface_p.h"
#include "render/ComboBoxLayout_p.h"

#include <Zanthic/CComboBoxListDelegate.h>
#include <Zanthic/CComboBoxListModel.h>
#include <Zanthic/CComboBoxListView.h>
#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomPushButton.h>

#include <QtCore/QTimer>
#include <QtGui/QCursor>
#include <QtGui/QScreen>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStylePainter>

#include <utility>

namespace {

constexpr int kListExtraWidth = 24; // over the combo box
constexpr int kListDistance = 6; // below where Qt places it
constexpr int kPopupDistance = 4; // below the last row of pixels
constexpr int kListTextMargin = 6;
constexpr int kButtonHeight = 30;
constexpr int kTokenRole = Qt::UserRole + 0x5a00; // tells a row with a widget from all others
constexpr int kFieldMargin = 4; // brings the text of an editable combo box where that of others begins

QString matchComboSelector(CustomComboBox::StyleSelector selector)
{
    switch (selector) {
    case CustomComboBox::Default:
        return QStringLiteral("Default");
    case CustomComboBox::DarkBlack:
        return QStringLiteral("DarkBlack");
    case CustomComboBox::GrayWhite:
        return QStringLiteral("GrayWhite");
    }
    return QString();
}

bool isClosingKey(const QKeyEvent &event)
{
    const bool isArrow = event.key() == Qt::Key_Down || event.key() == Qt::Key_Up;
    return event.key() == Qt::Key_Escape || event.key() == Qt::Key_F4
        || (isArrow && event.modifiers().testFlag(Qt::AltModifier));
}

// A colour of the skin, where it has that.
void setRole(QPalette *palette, QPalette::ColorRole role, const QString &name)
{
    const QBrush brush = Custom::getDataBaseColor(name);
    if (brush.style() != Qt::NoBrush)
        palette->setBrush(role, brush);
}

} // namespace

QStyleOptionViewItem ComboBoxModelView::viewOptions() const
{
    return CustomComboBoxPrivate::rowOption(QListView::viewOptions(), m_pComboBox);
}

QStyleOptionViewItem CustomComboBoxPrivate::rowOption(
    const QStyleOptionViewItem &option, const CustomComboBox *comboBox)
{
    QStyleOptionViewItem row = option;
    row.showDecorationSelected = true;
    if (comboBox) {
        row.font = comboBox->font();
        row.fontMetrics = QFontMetrics(row.font);
    }
    return row;
}

void CustomComboBoxPrivate::createView()
{
    auto *view = new CComboBoxListView(q);
    themedView = view;
    setSheet();
    view->setItemDelegate(new CComboBoxListDelegate(q, view));
    q->setModel(view->model());
    QObject::connect(view, &QListWidget::itemClicked, q, &CustomComboBox::onListItemClicked);
    q->setView(view);
    view->viewport()->installEventFilter(q); // comes before that of Qt's window
    if (QWidget *window = q->viewParent()) {
        window->installEventFilter(q);
        window->setStyleSheet(QStringLiteral("QFrame{outline: 0px;border : 0px; background:transparent;padding:0px;}"));
    }
}

CComboBoxListView *CustomComboBoxPrivate::listView() const
{
    return qobject_cast<CComboBoxListView *>(q->view());
}

void CustomComboBoxPrivate::replaceView(CComboBoxListView *view)
{
    if (themedView != view)
        return;
    auto *plain = new ComboBoxModelView(q);
    themedView = plain;
    setSheet();
    plain->setItemDelegate(new CComboBoxListDelegate(q, plain));
    // It is in the middle of a call, so it is taken out of the popup, which would delete it at once.
    view->setParent(q);
    view->hide();
    view->deleteLater();
    q->setView(plain);
}

void CustomComboBoxPrivate::setSheet()
{
    if (themedView)
        themedView->setStyleSheet(Custom::styleSheet(Custom::SheetListView));
}

// Qt's field keeps the colours of the platform otherwise. One that the application has coloured keeps its own.
void CustomComboBoxPrivate::colorField(bool isNewSkin)
{
    QLineEdit *edit = q->lineEdit();
    if (!edit)
        return;
    const auto textOf = [edit](QPalette::ColorGroup group) { return edit->palette().color(group, QPalette::Text); };
    const bool isOurs = edit == coloredField && textOf(QPalette::Active) == fieldColor;
    const QColor color = q->cFontColor();
    const QColor disabled = q->cFontColor(Custom::Disabled);
    const bool isCurrent = !isNewSkin && color == fieldColor && textOf(QPalette::Disabled) == disabled;
    if (isOurs ? isCurrent : edit->testAttribute(Qt::WA_SetPalette))
        return;
    coloredField = edit;
    fieldColor = color;
    QPalette colors = edit->palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Active, QPalette::Text, color);
    colors.setColor(QPalette::Inactive, QPalette::Text, color);
    colors.setColor(QPalette::Disabled, QPalette::Text, disabled);
    setRole(&colors, QPalette::Highlight, QStringLiteral("Custom_Selection"));
    setRole(&colors, QPalette::HighlightedText, QStringLiteral("Custom_Selection_Text"));
    edit->setPalette(colors);
    if (edit->textMargins().isNull())
        edit->setTextMargins(kFieldMargin, 0, 0, 0);
}

QString CustomComboBoxPrivate::multiText() const
{
    static const QString strSplit = QStringLiteral(";");
    QStringList labels;
    for (auto it = multiItems.cbegin(); it != multiItems.cend(); ++it) {
        if (KorvInterface::testFlag(it.key(), multiValue))
            labels.append(it.value());
    }
    return labels.join(strSplit);
}

// A row at the end, with a widget in it. Whoever hears of the new row may delete it, or the list; then there is
// neither.
void CustomComboBoxPrivate::addWidgetRow(
    CComboBoxListView *view, std::unique_ptr<QListWidgetItem> row, std::unique_ptr<QWidget> widget)
{
    const QPointer<CComboBoxListView> list(view);
    const int token = ++lastToken;
    row->setData(kTokenRole, token);
    view->addItem(row.release());
    for (int i = list ? list->count() - 1 : -1; i >= 0; --i) {
        if (list->item(i)->data(kTokenRole).toInt() == token) {
            list->setItemWidget(list->item(i), widget.release());
            return;
        }
    }
}

void CustomComboBoxPrivate::addCheckItem(CComboBoxListView *view, int flag, const QString &label)
{
    auto item = std::make_unique<QListWidgetItem>();
    item->setFlags(item->flags() & ~Qt::ItemIsSelectable);
    auto box = std::make_unique<CustomCheckBox>(nullptr, CustomCheckBox::GrayWhite);
    box->cSetStyleSelector(q->cStyleSelector());
    box->setText(label);
    box->cSetUserData(flag);
    box->setChecked(KorvInterface::testFlag(flag, multiValue));
    connectBox(box.get());
    addWidgetRow(view, std::move(item), std::move(box));
}

void CustomComboBoxPrivate::connectBox(const CustomCheckBox *box) const
{
    QObject::connect(box, &QCheckBox::stateChanged, q, &CustomComboBox::onMultiCheckChanged);
}

void CustomComboBoxPrivate::toggle(CustomCheckBox *box)
{
    // A box that is toggled by code goes on with itself after it has told of its state.
    isToggling = true;
    box->toggle();
    isToggling = false;
    if (std::exchange(valueChanged, false))
        tellOfValue();
}

void CustomComboBoxPrivate::tellOfValue()
{
    const QPointer<CustomComboBox> self(q);
    Q_EMIT q->sigMultiValueChanged();
    if (self)
        self->update();
}

// A row that can't be chosen; Qt would choose the one that the pointer was over before.
bool CustomComboBoxPrivate::isDeadRow(const QObject *watched, const QPoint &pos) const
{
    const CComboBoxListView *view = listView();
    const QListWidgetItem *item = view && watched == view->viewport() ? view->itemAt(pos) : nullptr;
    return item && !item->flags().testFlag(Qt::ItemIsEnabled);
}

bool CustomComboBoxPrivate::hasCustomPopup() const
{
    return popupWindow && popupWidget && popupWindow->isAncestorOf(popupWidget);
}

void CustomComboBoxPrivate::createPopupWindow()
{
    popupWindow = new CustomMainWindow(q);
    popupWindow->cSetTitleVisible(false);
    popupWindow->cSetBorderWidth(0, Custom::AllEdge, Custom::Normal);
    popupWindow->cSetBorderRadius(0, Custom::AllCorner, Custom::Normal);
    popupWindow->cSetStyleSelector(QStringLiteral("Popup"));
    popupWindow->installEventFilter(q);
}

void CustomComboBoxPrivate::showCustomPopup()
{
    popupAgain = popupRunning;
    if (popupRunning) { // the call that runs shows it again
        popupWindow->hide();
        return;
    }
    const QPointer<CustomComboBox> self(q);
    popupRunning = true;
    do {
        popupAgain = false;
        runPopup();
        if (!self)
            return;
    } while (popupAgain && hasCustomPopup());
    popupRunning = false;
    dropPressedLook();
}

void CustomComboBoxPrivate::runPopup()
{
    const QPointer<CustomComboBox> self(q);
    popupWindow->hide();
    if (!self || !hasCustomPopup())
        return;
    const QPointer<QWidget> content = popupWidget;
    const QSize size = content->size();
    popupWindow->setFixedSize(size);
    popupWindow->move(q->mapToGlobal(QPoint(0, q->height() - 1)) + QPoint(0, kPopupDistance));
    // The window's margins take something of the widget, which would shrink with each time.
    QSize inside;
    QObject context;
    QTimer::singleShot(0, &context, [&inside, content] { inside = content ? content->size() : QSize(); });
    popupWindow->cPopup();
    if (content && content->size() == inside)
        content->resize(size);
}

void CustomComboBoxPrivate::dropHover()
{
    // The pointer may have left it while the popup had all events.
    if (q->underMouse() && !q->rect().contains(q->mapFromGlobal(QCursor::pos()))) {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(q, &leave);
    }
}

void CustomComboBoxPrivate::dropPressedLook()
{
    const QPointer<CustomComboBox> self(q);
    dropHover();
    // The application may have disabled it meanwhile.
    if (!self || self->testAttribute(Qt::WA_ForceDisabled))
        return;
    const bool hadFocus = q->window()->focusWidget() == q;
    if (hadFocus) // or it would go to the next control for a moment
        q->clearFocus();
    q->setEnabled(false);
    if (!self)
        return;
    self->setEnabled(true);
    if (self && hadFocus)
        self->setFocus();
}

// What scrolls a long list at its ends has the colours of the platform, and inherits none below a style sheet.
void CustomComboBoxPrivate::colorScrollers(QWidget *window) const
{
    const QPalette list = q->view()->palette();
    const QWidgetList parts = window->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *part : parts) {
        if (part == q->view())
            continue;
        QPalette colors = part->palette();
        colors.setColor(QPalette::Window, list.color(QPalette::Base));
        for (const QPalette::ColorRole role : { QPalette::WindowText, QPalette::ButtonText, QPalette::Text })
            colors.setColor(role, list.color(QPalette::Text));
        part->setPalette(colors);
    }
}

void CustomComboBoxPrivate::placeList()
{
    QWidget *window = q->viewParent();
    if (!window)
        return;
    window->setFixedWidth(qMax(q->width() + kListExtraWidth, q->sizeHint().width()));
    colorScrollers(window);
    // The combo box may have been laid out since they were added.
    for (const QPointer<CustomPushButton> &button : qAsConst(buttonRows)) {
        if (button)
            button->setFixedWidth(q->width());
    }
    // A long list reaches down to the end of the screen, and what scrolls it on has to stay there.
    const QPoint room = window->screen()->availableGeometry().bottomRight() - window->geometry().bottomRight();
    window->move(window->pos() + QPoint(qMin(0, room.x()), qBound(0, room.y(), kListDistance)));
}

void CustomComboBoxPrivate::measureTexts()
{
    auto *model = qobject_cast<CComboBoxListModel *>(q->model());
    if (!model || !q->view())
        return;
    const QFontMetrics metrics(q->font());
    const int limit = q->view()->width() - kListTextMargin;
    bool isTooWide = false;
    for (int i = 0; i < q->count() && !isTooWide; ++i)
        isTooWide = metrics.boundingRect(q->itemText(i)).width() >= limit;
    model->cSetTextTooWide(isTooWide);
}

CustomComboBox::CustomComboBox(QWidget *parent, StyleSelector selector, bool multi)
    : QComboBox(parent),
      CustomObject(this, QString(), QStringLiteral("Default")),
      d(std::make_unique<CustomComboBoxPrivate>(this, multi))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
    cSetStyleSelector(matchComboSelector(selector));
    cResetAllValue();
    d->createView();
}

CustomComboBox::~CustomComboBox()
{
    // Its content may want to ask this class something.
    delete d->popupWindow;
}

void CustomComboBox::cSetComboBoxStyleSelector(StyleSelector selector)
{
    cSetStyleSelector(matchComboSelector(selector));
    if (d->isMulti)
        cSetMultiCheckItems(d->multiItems);
}

void CustomComboBox::cSetCustomDisplayText(const QString &text)
{
    d->displayText = text;
    update();
}

void CustomComboBox::cSetMultiCheckItems(const QMap<int, QString> &items)
{
    const QPointer<CComboBoxListView> view = d->listView();
    if (!view)
        return;
    // Whoever hears of the change of items may set others, which then are the ones.
    const QMap<int, QString> added = items;
    const int filling = ++d->fillings;
    view->clear();
    if (!view || d->fillings != filling)
        return;
    d->multiItems = added;
    for (auto it = added.cbegin(); it != added.cend() && view && d->fillings == filling; ++it)
        d->addCheckItem(view, it.key(), it.value());
}

void CustomComboBox::cSetMultiCheckValue(int value)
{
    d->multiValue = value;
    update();
    const QPointer<CComboBoxListView> view = d->listView();
    if (d->multiItems.isEmpty() || !view)
        return;
    for (int row = 0; view && row < view->count(); ++row) {
        const QPointer<CustomCheckBox> box = qobject_cast<CustomCheckBox *>(view->itemWidget(view->item(row)));
        if (!box)
            continue;
        disconnect(box, &QCheckBox::stateChanged, this, &CustomComboBox::onMultiCheckChanged);
        box->setChecked(KorvInterface::testFlag(box->cUserData().toInt(), value));
        if (view && box)
            d->connectBox(box);
    }
}

int CustomComboBox::cGetMultiCheckValue() const
{
    return d->multiValue;
}

void CustomComboBox::cAddButtonItem(QString text)
{
    CComboBoxListView *view = d->listView();
    if (!view)
        return;
    auto item = std::make_unique<QListWidgetItem>();
    item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
    item->setSizeHint(QSize(0, kButtonHeight));
    const QPointer<CustomPushButton> button = new CustomPushButton(text, nullptr, CustomPushButton::Default);
    button->setFixedSize(width(), kButtonHeight);
    connect(button, &QAbstractButton::clicked, this, &CustomComboBox::onButtonClicked);
    const QPointer<CustomComboBox> self(this);
    d->addWidgetRow(view, std::move(item), std::unique_ptr<QWidget>(button));
    if (!self || !button)
        return;
    // The first read gives the button its font, which the list's sheet would take away when it comes into the list.
    button->cSetFontColor(QStringLiteral("DB_COLOR_Custom_ComboBox_Font"), Custom::Normal);
    button->cSetFontColor(QStringLiteral("DB_COLOR_Custom_ComboBox_Font_Hover"), Custom::Hover);
    button->cSetFontColor(QStringLiteral("DB_COLOR_Custom_ComboBox_Font_Pressed"), Custom::Pressed);
    d->buttonRows.removeAll(nullptr);
    d->buttonRows.append(button);
}

void CustomComboBox::cSetCustomPopupWidget(QWidget *widget)
{
    for (const QWidget *holder = this; widget && holder; holder = holder->parentWidget()) {
        if (holder == widget)
            return;
    }
    d->popupWidget = widget;
    if (!widget)
        return;
    if (!d->popupWindow)
        d->createPopupWindow();
    d->popupWindow->cSetCentralWidget(widget);
    widget->show(); // one that was set before has been hidden
    // A popup that loses its content while it is open closes.
    QWidget *window = d->popupWindow;
    connect(widget, &QObject::destroyed, window, [this, window] {
        QTimer::singleShot(0, window, [this, window] {
            if (!d->hasCustomPopup())
                window->hide();
        });
    });
}

CustomMainWindow *CustomComboBox::cGetCustomPopupWindows() const
{
    return d->popupWindow;
}

void CustomComboBox::initComboBoxOption(QStyleOptionComboBox *option) const
{
    if (!option)
        return;
    initStyleOption(option);
    if (!d->displayText.isEmpty())
        option->currentText = d->displayText;
    else if (d->isMulti)
        option->currentText = d->multiText();
}

QWidget *CustomComboBox::viewParent() const
{
    return view() ? view()->parentWidget() : nullptr;
}

QSize CustomComboBox::sizeHint() const
{
    if (!styleSheet().isEmpty())
        return QComboBox::sizeHint();
    cFont(); // a new skin may have brought another one
    return QComboBox::sizeHint() + QSize(ComboBoxLayout::Text_Inset, 0);
}

void CustomComboBox::showPopup()
{
    if (d->hasCustomPopup()) {
        if (d->isPressing)
            d->popupWanted = true;
        else
            d->showCustomPopup();
        return;
    }
    QComboBox::showPopup();
    d->placeList();
    d->measureTexts();
}

void CustomComboBox::hidePopup()
{
    const QPointer<CustomComboBox> self(this);
    d->popupAgain = false;
    if (d->popupWindow)
        d->popupWindow->hide();
    if (self)
        QComboBox::hidePopup();
    if (self)
        d->dropHover();
}

void CustomComboBox::onListItemClicked(QListWidgetItem *item)
{
    CComboBoxListView *view = d->listView();
    if (auto *box = view ? qobject_cast<CustomCheckBox *>(view->itemWidget(item)) : nullptr)
        view->toggle(box);
}

void CustomComboBox::onMultiCheckChanged(int state)
{
    Q_UNUSED(state)
    const auto *box = qobject_cast<CustomCheckBox *>(sender());
    if (!box)
        return;
    const int flag = box->cUserData().toInt();
    d->multiValue = box->isChecked() ? d->multiValue | flag : d->multiValue & ~flag;
    if (d->isToggling)
        d->valueChanged = true;
    else
        d->tellOfValue();
}

void CustomComboBox::onButtonClicked()
{
    Q_EMIT sigButtonClicked();
}

void CustomComboBox::paintEvent(QPaintEvent *event)
{
    if (!styleSheet().isEmpty()) {
        QComboBox::paintEvent(event);
        return;
    }
    d->colorField(); // a value of this control may have changed
    QStyleOptionComboBox option;
    initComboBoxOption(&option);
    QStylePainter painter(this);
    cDrawWidget(Custom::WidgetComboBox, &painter, QRect(0, 0, width(), height()), &option);
}

bool CustomComboBox::event(QEvent *event)
{
    if (event->type() == QEvent::ChildPolished)
        d->colorField();
    return QComboBox::event(event);
}

void CustomComboBox::mousePressEvent(QMouseEvent *event)
{
    // The base class goes on with the combo box when showPopup() is done, and a custom popup may have deleted it. So
    // that opens only here.
    d->isPressing = true;
    QComboBox::mousePressEvent(event);
    d->isPressing = false;
    if (std::exchange(d->popupWanted, false))
        showPopup();
}

void CustomComboBox::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

bool CustomComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease && d->isDeadRow(watched, static_cast<QMouseEvent &>(*event).pos()))
        return true;
    // As they close a list.
    if (event->type() == QEvent::KeyPress && watched == d->popupWindow
        && isClosingKey(static_cast<QKeyEvent &>(*event))) {
        d->popupWindow->hide();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void CustomComboBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QComboBox::changeEvent(event);
}

void CustomComboBox::customEvent(QEvent *event)
{
    cCustomEvent(event);
    if (int(event->type()) != ChangeSkinEvent::EventType)
        return;
    d->setSheet();
    d->colorField(true); // also for other colours of a selection
}
