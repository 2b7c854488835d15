#include "DialogsPage.h"

#include "parts/Card.h"
#include "parts/Snapshot.h"

#include <Zanthic/CustomMessageBox.h>

#include <QtCore/QDir>
#include <QtCore/QMetaEnum>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace {

constexpr int Picture_Columns = 3;
constexpr int LongText_Repeats = 12;

QPixmap pictureOf(CustomMessageBox::HintIconStyle style, const QString &title, const QString &content)
{
    CustomMessageBox box;
    box.cSetHintStyle(style);
    box.cSetTextTitle(title);
    box.cSetContent(content);
    box.cSetButtons(style == CustomMessageBox::HintAsk ? CustomMainWindow::ButtonOk | CustomMainWindow::ButtonCancel
                                                       : CustomMainWindow::Buttons(CustomMainWindow::ButtonOk));
    box.cEndSetParameter();
    return Snapshot::ofWindow(&box, box.cBorderRadius(Custom::AllCorner));
}

QString number(int result)
{
    return QString::number(result);
}

} // namespace

DialogsPage::DialogsPage(QWidget *parent) : GalleryPage(parent)
{
    addPictures();
    addNotices();
    addTexts();
    addFiles();
}

DialogsPage::~DialogsPage() = default;

void DialogsPage::addPictures()
{
    Card *card = addCard(QT_TR_NOOP("Message boxes"), QT_TR_NOOP("A large text, a small one below, and an icon."));
    auto *table = new QGridLayout;
    table->setSpacing(16);
    table->setColumnStretch(Picture_Columns, 1);
    const char *const titles[] = { QT_TR_NOOP("Nothing special"), QT_TR_NOOP("The copy is ready"),
        QT_TR_NOOP("The disk is nearly full"), QT_TR_NOOP("The file can't be read"), QT_TR_NOOP("Save the changes?"),
        QT_TR_NOOP("All files are saved") };
    const QMetaEnum names = QMetaEnum::fromType<CustomMessageBox::HintIconStyle>();
    for (int i = 0; i < names.keyCount(); ++i) {
        const auto style = CustomMessageBox::HintIconStyle(names.value(i));
        const char *title = titles[style];
        auto *picture = new Snapshot([style, title] { return pictureOf(style, tr(title), tr("A few more words")); });
        table->addWidget(
            labelled(picture, QString::fromLatin1(names.key(i))), i / Picture_Columns, i % Picture_Columns);
    }
    card->add(table);
}

Roomy<CustomPushButton> *DialogsPage::asker(const char *words, std::function<QString()> ask)
{
    auto *button = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), words);
    connect(button, &CustomPushButton::clicked, this, [this, ask] {
        const QPointer<DialogsPage> self(this);
        const QString answer = ask();
        if (!self)
            return;
        m_answer = answer;
        showAnswer();
    });
    return button;
}

void DialogsPage::addNotices()
{
    using Box = CustomMessageBox;
    Card *card = addCard(QT_TR_NOOP("Notices and questions"), QT_TR_NOOP("The calls return when the box is closed."));
    card->add(row(
        { asker(QT_TR_NOOP("Warning"),
              [this] { return number(Box::warning(this, tr("A few more words"), {}, Box::ButtonOk, tr("Warning"))); }),
            asker(
                QT_TR_NOOP("Information"), [this] { return number(Box::information(this, tr("Only a large text"))); }),
            asker(QT_TR_NOOP("Error"),
                [this] {
                    return number(
                        Box::error(this, tr("A few more words"), {}, Box::ButtonOk | Box::ButtonCancel, tr("Error")));
                }),
            asker(QT_TR_NOOP("Simple"),
                [this] { return number(Box::simple(this, tr("A few more words"), tr("Done"), {}, Box::HintSuccess)); }),
            asker(QT_TR_NOOP("OK or Cancel"), [this] { return number(Box::ask(this, tr("Go on?"))); }),
            asker(QT_TR_NOOP("Yes or No"), [this] { return number(Box::askYesNo(this, tr("Go on?"))); }) },
        12));
    card->add(m_pAnswer = new TextLabel(TextLabel::Caption, this));
}

void DialogsPage::addTexts()
{
    using Box = CustomMessageBox;
    Card *card
        = addCard(QT_TR_NOOP("Texts"), QT_TR_NOOP("Texts are shown as they stand; only links are made, if wanted."));
    card->add(row({ asker(QT_TR_NOOP("A long text"),
                        [this] {
                            return number(
                                Box::warning(this, tr("And so on. ").repeated(LongText_Repeats), {}, Box::ButtonOk,
                                    tr("This text is longer than the line that it stands in. ").repeated(2)));
                        }),
                      asker(QT_TR_NOOP("The large size"),
                          [this] {
                              return number(Box::askYesNo(this, tr("A few more words"),
                                  tr("This text is longer than the line that it stands in. ").repeated(4), true));
                          }),
                      asker(QT_TR_NOOP("Markup and percent signs"),
                          [this] {
                              return number(Box::error(this, QStringLiteral("<b>50 % & 100%1</b>"), {}, Box::ButtonOk,
                                  QStringLiteral("<i>%s %1 %%</i>")));
                          }),
                      asker(QT_TR_NOOP("A link"),
                          [this] {
                              return number(Box::information(this,
                                  QStringLiteral("%1 <a href=\"https://www.qt.io\">qt.io</a>").arg(tr("Read on at")),
                                  {}, Box::ButtonOk, tr("A link"), true));
                          }) },
        12));
}

void DialogsPage::addFiles()
{
    Card *card
        = addCard(QT_TR_NOOP("File dialogs"), QT_TR_NOOP("A folder that can't be written is refused with a warning."));
    card->add(row({ asker(QT_TR_NOOP("Choose a folder"),
                        [this] { return Custom::getExistingDirectory(this, tr("Choose a folder"), QDir::rootPath()); }),
                      asker(QT_TR_NOOP("Save a file"),
                          [this] {
                              return Custom::getSaveFileName(this, tr("Save a file"), QDir::tempPath(),
                                  tr("Texts (*.txt)"), QStringLiteral("notes"), QStringLiteral("txt"));
                          }) },
        12));
}

void DialogsPage::showAnswer()
{
    m_pAnswer->setText(m_answer.isEmpty() ? tr("No answer yet") : tr("Answer: %1").arg(m_answer));
}

void DialogsPage::retranslate()
{
    GalleryPage::retranslate();
    showAnswer();
}
