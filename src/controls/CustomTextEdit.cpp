#include <Zanthic/CustomTextEdit.h>

#include "style/CustomPrivate_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtCore/QEvent>

namespace {

void resetStyleSheet(CustomTextEdit *edit)
{
    const auto status = Custom::Normal;
    // All at once: a family name that holds "%5" must stay as it is.
    const QString sheet = QStringLiteral("CustomTextEdit{color:%1;                                  "
                                         "background-color:%2;                                  "
                                         "font-size: %3px;                                  "
                                         "font-family: %4;                                  "
                                         "border: %5px solid %6;}")
                              .arg(Custom::color2String(edit->cFontColor(status)),
                                  Custom::color2String(edit->cBackgroundColor(status).color()),
                                  QString::number(edit->cFontSize(status)), edit->cFontFamily(status),
                                  QString::number(edit->cBorderWidth(Custom::AllEdge, status)),
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
