#include "GalleryPage.h"

#include "parts/Card.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace {

constexpr int Page_Margin = 24;
constexpr int Card_Gap = 16;
constexpr int Caption_Gap = 8;
constexpr int Table_ColumnGap = 16;
constexpr int Table_RowGap = 12;

} // namespace

const QVector<Custom::ItemStatus> &allStatuses()
{
    static const QVector<Custom::ItemStatus> statuses
        = { Custom::Normal, Custom::Hover, Custom::Pressed, Custom::Disabled };
    return statuses;
}

const char *GalleryPage::statusSource(Custom::ItemStatus status)
{
    switch (status) {
    case Custom::Hover:
        return QT_TR_NOOP("Hover");
    case Custom::Pressed:
        return QT_TR_NOOP("Pressed");
    case Custom::Disabled:
        return QT_TR_NOOP("Disabled");
    case Custom::Normal:
        break;
    }
    return QT_TR_NOOP("Normal");
}

QString GalleryPage::statusName(Custom::ItemStatus status)
{
    return tr(statusSource(status));
}

GalleryPage::GalleryPage(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Page_Margin, Card_Gap, Page_Margin, Page_Margin);
    layout->setSpacing(Card_Gap);
    layout->addStretch(1); // below the cards
}

GalleryPage::~GalleryPage() = default;

Card *GalleryPage::addCard(const char *heading, const char *description)
{
    auto *card = new Card(this);
    card->add(text(heading, TextLabel::Heading));
    if (description) {
        TextLabel *words = text(description, TextLabel::Caption);
        words->setWordWrap(true);
        card->add(words);
    }
    auto *cards = static_cast<QVBoxLayout *>(layout());
    cards->insertWidget(cards->count() - 1, card);
    return card;
}

TextLabel *GalleryPage::text(const char *source, TextLabel::Role role)
{
    return translated(new TextLabel(role, this), source);
}

TextLabel *GalleryPage::plainText(const QString &words, TextLabel::Role role)
{
    auto *label = new TextLabel(role, this);
    label->setText(words);
    return label;
}

TextLabel *GalleryPage::statusLabel(Custom::ItemStatus status)
{
    return withStatusName(new TextLabel(TextLabel::Caption, this), status);
}

QWidget *GalleryPage::captioned(QWidget *specimen, const char *caption)
{
    return captioned(specimen, text(caption, TextLabel::Caption));
}

QWidget *GalleryPage::labelled(QWidget *specimen, const QString &caption)
{
    return captioned(specimen, plainText(caption, TextLabel::Caption));
}

QWidget *GalleryPage::captioned(QWidget *specimen, TextLabel *caption)
{
    auto *holder = new QWidget(this);
    auto *layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Caption_Gap);
    layout->addWidget(specimen, 1, Qt::AlignHCenter | Qt::AlignVCenter);
    layout->addWidget(caption, 0, Qt::AlignHCenter);
    return holder;
}

QBoxLayout *GalleryPage::row(const QList<QWidget *> &widgets, int gap)
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(gap);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch(1);
    return layout;
}

QGridLayout *GalleryPage::statusTable(bool liveColumn)
{
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(Table_ColumnGap);
    table->setVerticalSpacing(Table_RowGap);
    int column = 1;
    for (Custom::ItemStatus status : allStatuses())
        table->addWidget(statusLabel(status), 0, column++);
    if (liveColumn) {
        auto *heading = new TextLabel(TextLabel::Caption, this);
        addText(
            QT_TR_NOOP("Live, to try"), [heading](const QString &words) { heading->setText(words); }, CommonContext);
        table->addWidget(heading, 0, column++);
    }
    for (int i = 0; i < column; ++i)
        table->setColumnStretch(i, 1);
    return table;
}

void GalleryPage::addText(const char *source, std::function<void(const QString &)> write, const char *context)
{
    m_texts.push_back({ context, source, std::move(write) });
}

void GalleryPage::retranslate()
{
    for (const Text &text : m_texts) {
        const char *context = text.context ? text.context : metaObject()->className();
        text.write(QCoreApplication::translate(context, text.source));
    }
}

void GalleryPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
