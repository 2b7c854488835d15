#include "SpinBoxesPage.h"

#include "parts/Card.h"
#include "parts/LiveText.h"
#include "parts/Snapshot.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomDoubleSpinBox.h>
#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomProcessSlider.h>
#include <Zanthic/CustomSlider.h>
#include <Zanthic/CustomSliderSpinBox.h>
#include <Zanthic/CustomSpinBox.h>
#include <Zanthic/CustomSpinBox64.h>

#include <QtCore/QEvent>
#include <QtCore/QMetaEnum>
#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

#include <limits>
#include <memory>

namespace {

constexpr int Box_Width = 144;
constexpr int Wide_Width = 232; // for 64 bits
constexpr int Slider_Width = 280;
constexpr int Maximum = 1000;
constexpr int Value_Start = 42;
constexpr int Popup_Distance = 4; // px, below the spin box
constexpr int Field_Radius = 4;

template <class Box>
Box *filled(Box *box, int width = Box_Width)
{
    box->setRange(0, Maximum);
    box->setValue(Value_Start);
    box->setFixedWidth(width);
    return box;
}

template <class Box>
Box *ranged(Box *box, qint64 minimum, qint64 maximum, qint64 value, int width = Box_Width)
{
    box->setRange(minimum, maximum);
    box->setValue(value);
    box->setFixedWidth(width);
    return box;
}

CustomSliderSpinBox *newSliderBox(
    QWidget *parent, CustomSliderSpinBox::SliderPosition position, qint64 minimum = 0, qint64 maximum = Maximum)
{
    auto *control = new CustomSliderSpinBox(parent, Custom::Default, position);
    control->cSetRange(minimum, maximum);
    control->cSetValue(Value_Start);
    control->setFixedWidth(position == CustomSliderSpinBox::SliderInline ? Slider_Width : Wide_Width);
    return control;
}

/// The control with its popup open.
QPixmap pictureWithPopup()
{
    const std::unique_ptr<CustomSliderSpinBox> control(newSliderBox(nullptr, CustomSliderSpinBox::SliderPopup));
    control->resize(control->sizeHint());
    const QPixmap box = Snapshot::rounded(control->grab(), Field_Radius);
    QWidget *window = control->getSlider()->window();
    window->setFixedSize(Wide_Width, control->getSlider()->height());
    const QPixmap popup = Snapshot::ofWindow(window, 0);
    const qreal scale = box.devicePixelRatio();
    const int top = box.height() + qRound(Popup_Distance * scale);
    QPixmap picture(box.width(), top + popup.height());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.drawPixmap(0, 0, box);
    painter.drawPixmap(QPointF(0, top / scale), popup);
    return picture;
}

} // namespace

SpinBoxesPage::SpinBoxesPage(QWidget *parent) : GalleryPage(parent)
{
    addLooks();
    addRanges();
    addSignals();
    addSliders();
}

SpinBoxesPage::~SpinBoxesPage() = default;

void SpinBoxesPage::addLooks()
{
    Card *card = addCard(QT_TR_NOOP("Looks"), QT_TR_NOOP("Point at a field or go into it to see its other statuses."));
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(16);
    table->setVerticalSpacing(12);
    const char *const headings[] = { "CustomSpinBox", "CustomDoubleSpinBox", "CustomSpinBox64" };
    for (int column = 0; column < 3; ++column)
        table->addWidget(plainText(QString::fromLatin1(headings[column]), TextLabel::Caption), 0, column + 1);
    table->addWidget(statusLabel(Custom::Disabled), 0, 4);
    const QMetaEnum names = QMetaEnum::fromType<Custom::CommonStyleSelector>();
    for (int line = 1; line <= names.keyCount(); ++line) {
        const auto selector = Custom::CommonStyleSelector(names.value(line - 1));
        table->addWidget(plainText(QString::fromLatin1(names.key(line - 1)), TextLabel::Body), line, 0);
        table->addWidget(filled(new CustomSpinBox(this, selector)), line, 1);
        table->addWidget(filled(new CustomDoubleSpinBox(this, selector)), line, 2);
        table->addWidget(filled(new CustomSpinBox64(this, selector)), line, 3);
        auto *disabled = filled(new CustomSpinBox(this, selector));
        disabled->setEnabled(false);
        table->addWidget(disabled, line, 4);
    }
    table->setColumnStretch(5, 1);
    card->add(table);
}

void SpinBoxesPage::addRanges()
{
    Card *card = addCard(QT_TR_NOOP("Ranges"),
        QT_TR_NOOP("The wheel changes no value, it scrolls the page. A box for doubles shows whole numbers."));
    auto *negative = ranged(new CustomSpinBox(this), -50, 50, -7);
    auto *rounded = ranged(new CustomDoubleSpinBox(this), -50, 50, 0);
    rounded->setDecimals(1);
    rounded->setSingleStep(0.5);
    rounded->setValue(2.5);
    using Limits = std::numeric_limits<qint64>;
    auto *largest = ranged(new CustomSpinBox64(this), Limits::min(), Limits::max(), Limits::max() - 1, Wide_Width);
    auto *least = ranged(new CustomSpinBox64(this), Limits::min(), Limits::max(), Limits::min(), Wide_Width);
    auto *value = new LiveText(
        TextLabel::Caption, [rounded] { return tr("in steps of 0.5, is %1").arg(rounded->value(), 0, 'f', 1); }, this);
    connect(rounded, QOverload<double>::of(&QDoubleSpinBox::valueChanged), value, &LiveText::refresh);
    card->add(row({ captioned(negative, QT_TR_NOOP("from -50 to 50")), captioned(rounded, value),
        captioned(largest, QT_TR_NOOP("near the top of 64 bits")), captioned(least, QT_TR_NOOP("at their bottom")) }));
}

std::function<void()> SpinBoxesPage::counter(QGridLayout *table, int line, int column)
{
    TextLabel *label = plainText(QStringLiteral("0"), TextLabel::Body);
    table->addWidget(label, line, column);
    return [label] { label->setText(QString::number(label->text().toInt() + 1)); };
}

template <class Control, class Signal>
void SpinBoxesPage::addCounts(QGridLayout *table, Control *control, Signal valueChanged)
{
    const int line = table->rowCount();
    const QString name = QString::fromLatin1(Control::staticMetaObject.className());
    table->addWidget(plainText(name, TextLabel::Body), line, 0);
    table->addWidget(control, line, 1);
    connect(control, &Control::SigForceIn, this, counter(table, line, 2));
    connect(control, &Control::SigForceOut, this, counter(table, line, 3));
    connect(control, &Control::SigSaveParam, this, counter(table, line, 4));
    connect(control, valueChanged, this, counter(table, line, 5));
}

void SpinBoxesPage::addSignals()
{
    Card *card = addCard(QT_TR_NOOP("What they tell"),
        QT_TR_NOOP(
            "The focus comes and goes; the mouse is let go; the value changes. Keys don't bring SigSaveParam()."));
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(24);
    table->setVerticalSpacing(12);
    const char *const headings[] = { "SigForceIn()", "SigForceOut()", "SigSaveParam()", "valueChanged()" };
    for (int column = 0; column < 4; ++column) {
        table->addWidget(plainText(QString::fromLatin1(headings[column]), TextLabel::Caption), 0, column + 2);
        table->setColumnStretch(column + 2, 1);
    }
    addCounts(table, filled(new CustomSpinBox(this)), QOverload<int>::of(&CustomSpinBox::valueChanged));
    addCounts(table, filled(new CustomDoubleSpinBox(this)), QOverload<double>::of(&CustomDoubleSpinBox::valueChanged));
    addCounts(table, filled(new CustomSpinBox64(this)), &CustomSpinBox64::valueChanged);
    m_pSlider = filled(new CustomSlider(Qt::Horizontal, this));
    addCounts(table, m_pSlider, &CustomSlider::valueChanged);
    card->add(table);
}

LiveText *SpinBoxesPage::stateOf(CustomSliderSpinBox *control, const char *caption)
{
    struct State
    {
        int values = 0;
        int releases = 0;
    };
    const auto state = std::make_shared<State>();
    auto *words = new LiveText(
        TextLabel::Caption,
        [control, caption, state] {
            return tr("%1: %2; changes %3, releases %4")
                .arg(tr(caption))
                .arg(control->cGetValue())
                .arg(state->values)
                .arg(state->releases);
        },
        this);
    const auto count = [words](int &number) {
        ++number;
        words->refresh();
    };
    connect(control, &CustomSliderSpinBox::sigValueChanged, words, [count, state] { count(state->values); });
    connect(control, &CustomSliderSpinBox::sigReleaseValueChanged, words, [count, state] { count(state->releases); });
    return words;
}

void SpinBoxesPage::addSliders()
{
    Card *card = addCard(QT_TR_NOOP("With a slider"),
        QT_TR_NOOP("The slider stands beside the field, or below it while the field has the focus."));
    auto *beside = newSliderBox(this, CustomSliderSpinBox::SliderInline);
    auto *marked = newSliderBox(this, CustomSliderSpinBox::SliderInline, -Maximum);
    auto *popup = newSliderBox(this, CustomSliderSpinBox::SliderPopup);
    card->add(row({ captioned(beside, stateOf(beside, QT_TR_NOOP("Beside"))),
        captioned(marked, stateOf(marked, QT_TR_NOOP("Zero marked"))) }));
    LiveText *state = stateOf(popup, QT_TR_NOOP("Popup"));
    state->setMinimumHeight(popup->sizeHint().height());
    QBoxLayout *line
        = row({ captioned(new Snapshot(pictureWithPopup), QT_TR_NOOP("the popup while it is open")), popup, state });
    line->setAlignment(popup, Qt::AlignTop);
    line->setAlignment(state, Qt::AlignTop);
    card->add(line);
}

void SpinBoxesPage::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        m_pSlider->setStyleSheet(Custom::styleSheet(Custom::SheetSlider)); // which it doesn't do by itself
}
