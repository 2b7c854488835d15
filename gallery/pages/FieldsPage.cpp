#include "FieldsPage.h"

#include "parts/Card.h"

#include <Zanthic/CustomFolderSelectWidget.h>
#include <Zanthic/CustomLineEdit.h>
#include <Zanthic/CustomSelectWidget.h>
#include <Zanthic/CustomTextEdit.h>

#include <QtCore/QDate>
#include <QtCore/QDir>
#include <QtCore/QMetaEnum>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace {

constexpr int Field_Width = 200;
constexpr int Path_Width = 320;
constexpr int TextEdit_Height = 72; // less than the texts need;

template <class Edit>
Edit *sized(Edit *edit, int width = Field_Width)
{
    edit->setFixedWidth(width);
    return edit;
}

} // namespace

FieldsPage::FieldsPage(QWidget *parent) : GalleryPage(parent)
{
    addLooks();
    addBehaviour();
    addChoosing();
    addTextEdits();
}

FieldsPage::~FieldsPage() = default;

void FieldsPage::addLooks()
{
    Card *card = addCard(QT_TR_NOOP("Looks"), QT_TR_NOOP("Point at a field or go into it to see its other statuses."));
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(16);
    table->setVerticalSpacing(12);
    const char *const headings[]
        = { QT_TR_NOOP("With a text"), QT_TR_NOOP("Empty"), QT_TR_NOOP("With a button"), QT_TR_NOOP("Disabled") };
    for (int column = 0; column < 4; ++column)
        table->addWidget(text(headings[column], TextLabel::Caption), 0, column + 1);
    const QMetaEnum names = QMetaEnum::fromType<CustomLineEdit::StyleSelector>();
    for (int line = 1; line <= names.keyCount(); ++line) {
        const auto selector = CustomLineEdit::StyleSelector(names.value(line - 1));
        table->addWidget(plainText(QString::fromLatin1(names.key(line - 1)), TextLabel::Body), line, 0);
        CustomLineEdit *edits[4];
        for (int column = 0; column < 4; ++column) {
            edits[column] = new CustomLineEdit(this, selector);
            table->addWidget(edits[column], line, column + 1);
        }
        translated(edits[0], QT_TR_NOOP("A text"));
        addText(
            QT_TR_NOOP("Placeholder"), [edit = edits[1]](const QString &words) { edit->setPlaceholderText(words); });
        translated(edits[2], QT_TR_NOOP("A text"))->cSetEnableSearchButton(true);
        translated(edits[3], QT_TR_NOOP("A text"))->setEnabled(false);
    }
    card->add(table);
}

void FieldsPage::addBehaviour()
{
    Card *card = addCard(
        QT_TR_NOOP("Clicks and keys"), QT_TR_NOOP("The first click into a field selects all of its text, if wanted."));
    auto *selecting = translated(sized(new CustomLineEdit(this)), QT_TR_NOOP("Click me"));
    auto *plain = translated(sized(new CustomLineEdit(this)), QT_TR_NOOP("Click me"));
    plain->cSetEnableIntoSelected(false);
    auto *readOnly = translated(sized(new CustomLineEdit(this)), QT_TR_NOOP("Only to be read"));
    readOnly->setReadOnly(true);
    auto *searching = translated(sized(new CustomLineEdit(this)), QT_TR_NOOP("Cats"));
    searching->cSetEnableSearchButton(true);
    connect(searching, &CustomLineEdit::cSigSearchClicked, this, [this, searching] { search(searching->text()); });
    connect(searching, &CustomLineEdit::returnPressed, this, [this, searching] { search(searching->text()); });
    card->add(row({ captioned(selecting, QT_TR_NOOP("selects all")), captioned(plain, QT_TR_NOOP("selects nothing")),
                      captioned(readOnly, QT_TR_NOOP("read-only")), captioned(searching, QT_TR_NOOP("searches")) },
        16));
    card->add(m_pSearched = new TextLabel(TextLabel::Caption, this));
}

void FieldsPage::addChoosing()
{
    Card *card = addCard(QT_TR_NOOP("Choosing"), QT_TR_NOOP("The button at the end asks for the value."));
    auto *folder = sized(new CustomFolderSelectWidget(this), Path_Width);
    folder->setText(QDir::rootPath());
    folder->cSetAutoSelectFolder(true);
    auto *file = sized(new CustomFolderSelectWidget(this, QStringLiteral("PNG (*.png)")), Path_Width);
    addText(QT_TR_NOOP("No picture yet"), [file](const QString &words) { file->setPlaceholderText(words); });
    file->cSetAutoSelectFolder(true);
    auto *value = sized(new CustomSelectWidget(this));
    addText(QT_TR_NOOP("A date"), [value](const QString &words) { value->setPlaceholderText(words); });
    connect(value, &CustomSelectWidget::SigSelectBtn, value,
        [value] { value->setText(QDate::currentDate().toString(Qt::ISODate)); });
    card->add(row({ captioned(folder, QT_TR_NOOP("a folder")), captioned(file, QT_TR_NOOP("a picture")),
        captioned(value, QT_TR_NOOP("what the program says")) }));
}

void FieldsPage::addTextEdits()
{
    Card *card = addCard(QT_TR_NOOP("Texts of several lines"));
    auto *edits = new QHBoxLayout;
    edits->setSpacing(16);
    const QMetaEnum names = QMetaEnum::fromType<CustomLineEdit::StyleSelector>();
    for (int i = 0; i < names.keyCount(); ++i) {
        auto *edit = new CustomTextEdit(this);
        edit->cSetStyleSelector(QString::fromLatin1(names.key(i)));
        edit->setFixedHeight(TextEdit_Height);
        auto *column = new QVBoxLayout;
        column->setSpacing(8);
        column->addWidget(edit);
        column->addWidget(plainText(QString::fromLatin1(names.key(i)), TextLabel::Caption), 0, Qt::AlignHCenter);
        edits->addLayout(column);
        translated(edit,
            QT_TR_NOOP("Write here what takes more than one line. The scroll bar at the side is the theme's, and it "
                       "comes when the text is longer than the field.\nThe colours follow the skin."));
    }
    card->add(edits);
}

void FieldsPage::search(const QString &words)
{
    m_searched = words;
    showSearched();
}

void FieldsPage::showSearched()
{
    m_pSearched->setText(
        m_searched.isEmpty() ? tr("Nothing was searched for") : tr("Searched for: %1").arg(m_searched));
}

void FieldsPage::retranslate()
{
    GalleryPage::retranslate();
    showSearched();
}
