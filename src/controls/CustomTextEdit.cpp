#include <Zanthic/CustomTextEdit.h>

#include "style/CustomPrivate_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtCore/QEvent>
#include <QtCore/QRegularExpression>
#include <QtGui/QFontInfo>

namespace {

// A family's name in a style sheet. One that isn't made of plain words would break the sheet, or add to it.
QString familyText(const QString &family)
{
    static const QRegularExpression plain(
        QStringLiteral("\\A(?:([^\\W\\d][\\w-]*|\\d+)(?: (?1))*)?\\z"), QRegularExpression::UseUnicodePropertiesOption);
    if (plain.match(family).hasMatch())
        return family;
    QString quoted;
    for (const QChar c : family) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            quoted += QLatin1Char('\\');
        quoted += c < QLatin1Char(' ') ? QLatin1Char(' ') : c;
    }
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

// px. Qt warns of sizes below 1, which stand for a font that is measured in points.
int fontSize(const CustomTextEdit &edit)
{
    const int size = edit.cFontSize(Custom::Normal);
    return size > 0 ? size : qMax(1, QFontInfo(edit.font()).pixelSize());
}

// The edit's own font is that of the last sheet, and knows of no other language.
QString fontFamily(const CustomTextEdit &edit)
{
    bool found = false;
    const QString family = edit.cFontFamily(Custom::Normal, {}, &found);
    const QString global = Custom::globalFontFamily();
    return found || global.isEmpty() ? family : global;
}

void resetStyleSheet(CustomTextEdit *edit)
{
    const auto status = Custom::Normal;
    // All at once: a family name that holds "%5" must stay as it is.
    const QString sheet
        = QStringLiteral("CustomTextEdit{color:%1;                                  "
                         "background-color:%2;                                  "
                         "font-size: %3px;                                  "
                         "font-family: %4;                                  "
                         "border: %5px solid %6;}")
              .arg(Custom::color2String(edit->cFontColor(status)),
                  Custom::color2String(edit->cBackgroundColor(status).color()), QString::number(fontSize(*edit)),
                  familyText(fontFamily(*edit)), QString::number(edit->cBorderWidth(Custom::AllEdge, status)),
                  Custom::brush2String(edit->cBorderColor(Custom::AllEdge, status)));
    edit->setStyleSheet(sheet + Custom::styleSheet(Custom::SheetScrollBar));
}

} // namespace

CustomTextEdit::CustomTextEdit(QWidget *parent) : CustomTextEdit(QString(), parent) { }

CustomTextEdit::CustomTextEdit(const QString &text, QWidget *parent)
    : QTextEdit(text, parent), CustomObject(this, QString(), QStringLiteral("Default"))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
    resetStyleSheet(this);
}

CustomTextEdit::~CustomTextEdit() = default;

void CustomTextEdit::cSetStyleSelector(const QString &selector)
{
    CustomObject::cSetStyleSelector(selector);
    resetStyleSheet(this);
}

void CustomTextEdit::cNotifyUpdateValue(const QString &key, const QString &value, Custom::ItemStatus status)
{
    CustomObject::cNotifyUpdateValue(key, value, status);
    resetStyleSheet(this);
}

void CustomTextEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && CustomPrivate::isFontFamilyChange())
        resetStyleSheet(this);
    QTextEdit::changeEvent(event);
}

void CustomTextEdit::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        resetStyleSheet(this);
}
