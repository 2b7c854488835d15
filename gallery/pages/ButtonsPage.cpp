#include "ButtonsPage.h"

#include "parts/Card.h"
#include "parts/Roomy.h"
#include "parts/StatusSpecimen.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace {

constexpr QSize IconButton_Size(128, 32);
constexpr QSize TallButton_Size(128, 64); // room for an icon above or below the text
constexpr QSize IconOnly_Size(40, 32);
constexpr QSize PhotoButton_Size(160, 48);

/// A button of the default look with an icon of the theme in the colours of its text.
CustomPushButton *withIcon(CustomPushButton *button)
{
    button->cSetIcon(QStringLiteral(":/Zanthic/Icons/check-on-accent.png"));
    button->cSetIcon(QStringLiteral(":/Zanthic/Icons/check-on-accent-disabled.png"), Custom::Disabled);
    return button;
}

} // namespace

ButtonsPage::ButtonsPage(QWidget *parent) : GalleryPage(parent)
{
    addLooks();
    addIcons();
    addImages();
    addGuard();
}

ButtonsPage::~ButtonsPage() = default;

void ButtonsPage::addLooks()
{
    Card *card = addCard(QT_TR_NOOP("Looks and statuses"),
        QT_TR_NOOP("Each row is a selector of the style document, each column a status of it."));
    QGridLayout *table = statusTable(true);
    const QMetaEnum names = QMetaEnum::fromType<CustomPushButton::StyleSelector>();
    for (int i = 0; i < names.keyCount(); ++i) {
        const auto selector = CustomPushButton::StyleSelector(names.value(i));
        const int line = i + 1;
        table->addWidget(plainText(QString::fromLatin1(names.key(i)), TextLabel::Body), line, 0);
        int column = 1;
        for (Custom::ItemStatus status : allStatuses()) {
            auto *specimen = new Roomy<PushButtonSpecimen>(status, this, selector);
            table->addWidget(
                translated(specimen, QT_TR_NOOP("Button")), line, column++, Qt::AlignLeft | Qt::AlignVCenter);
        }
        auto *live = new Roomy<CustomPushButton>(this, selector);
        table->addWidget(translated(live, QT_TR_NOOP("Press me")), line, column, Qt::AlignLeft | Qt::AlignVCenter);
    }
    card->add(table);
}

void ButtonsPage::addIcons()
{
    Card *card = addCard(QT_TR_NOOP("Icons"), QT_TR_NOOP("IconAlignment says at which side of the text the icon is."));
    const struct
    {
        Qt::Alignment side;
        const char *caption;
    } cases[] = {
        { Qt::AlignLeft, QT_TR_NOOP("left") },
        { Qt::AlignRight, QT_TR_NOOP("right") },
        { Qt::AlignTop, QT_TR_NOOP("top") },
        { Qt::AlignBottom, QT_TR_NOOP("bottom") },
    };
    QList<QWidget *> buttons;
    for (const auto &one : cases) {
        CustomPushButton *button = withIcon(new CustomPushButton(this));
        button->cSetIconAlign(one.side);
        button->setFixedSize(one.side & (Qt::AlignTop | Qt::AlignBottom) ? TallButton_Size : IconButton_Size);
        buttons << captioned(translated(button, QT_TR_NOOP("Apply")), one.caption);
    }
    CustomPushButton *iconOnly = withIcon(new CustomPushButton(this));
    iconOnly->setFixedSize(IconOnly_Size);
    buttons << captioned(iconOnly, QT_TR_NOOP("without a text"));
    CustomPushButton *disabled = withIcon(new CustomPushButton(this));
    disabled->cSetIconAlign(Qt::AlignLeft);
    disabled->setFixedSize(IconButton_Size);
    disabled->setEnabled(false);
    buttons << captioned(translated(disabled, QT_TR_NOOP("Apply")), QT_TR_NOOP("disabled"));
    card->add(row(buttons));
}

void ButtonsPage::addImages()
{
    Card *card = addCard(QT_TR_NOOP("Image buttons"),
        QT_TR_NOOP("A button with a background image is as large as the image. A base image is scaled to the button."));
    QList<QWidget *> buttons;
    for (Custom::ItemStatus status : allStatuses()) {
        auto *image = new PushButtonSpecimen(status, this);
        image->cSetClassName(QStringLiteral("GalleryImageButton"));
        buttons << captioned(image, statusLabel(status));
    }
    auto *live = new CustomPushButton(this);
    live->cSetClassName(QStringLiteral("GalleryImageButton"));
    buttons << captioned(live, QT_TR_NOOP("live"));
    auto *photo = new CustomPushButton(this);
    photo->cSetClassName(QStringLiteral("GalleryPhotoButton"));
    photo->setFixedSize(PhotoButton_Size);
    buttons << captioned(translated(photo, QT_TR_NOOP("On an image")), QT_TR_NOOP("base background image"));
    card->add(row(buttons));
}

void ButtonsPage::addGuard()
{
    Card *card = addCard(QT_TR_NOOP("Click guard"),
        QT_TR_NOOP("A guarded button takes no second click for 100 ms. Click both as fast as you can."));
    QWidget *guarded = addCounter(&m_guarded, QT_TR_NOOP("Guarded"));
    QWidget *plain = addCounter(&m_plain, QT_TR_NOOP("Without a guard"));
    m_guarded.button->cSetControlClickEvent(true);
    card->add(row({ guarded, plain }, 48));
}

QWidget *ButtonsPage::addCounter(Counter *counter, const char *source)
{
    counter->button = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), source);
    counter->label = new TextLabel(TextLabel::Body, this);
    connect(counter->button, &CustomPushButton::clicked, this, [this, counter] {
        ++counter->clicks;
        showClicks(*counter);
    });
    auto *holder = new QWidget(this);
    auto *layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(counter->button);
    layout->addWidget(counter->label);
    return holder;
}

void ButtonsPage::showClicks(const Counter &counter)
{
    counter.label->setText(tr("Clicks: %1").arg(counter.clicks));
}

void ButtonsPage::retranslate()
{
    GalleryPage::retranslate();
    showClicks(m_guarded);
    showClicks(m_plain);
}
