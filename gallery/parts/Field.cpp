#include "Field.h"

#include "SkinColors.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/Custom.h>

#include <QtGui/QKeyEvent>

Field::Field(QWidget *parent) : QLineEdit(parent)
{
    takeStyle();
}

Field::~Field() = default;

bool Field::event(QEvent *event)
{
    // A line edit claims some control keys for itself, Ctrl+E among them, which is a key of the window.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *press = static_cast<QKeyEvent *>(event);
        const QList<int> windowKeys = { Qt::Key_T, Qt::Key_L, Qt::Key_E };
        if (press->modifiers() == Qt::ControlModifier && windowKeys.contains(press->key())) {
            event->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void Field::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        takeStyle();
    QLineEdit::changeEvent(event);
}

void Field::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        takeStyle();
}

void Field::takeStyle()
{
    // Not the family in force: while a skin change is being told, that is still the one of the first language.
    const auto color = [](QLatin1String name) { return Custom::getDataBaseColor(name).color().name(); };
    const QString sheet = QStringLiteral("QLineEdit { font-family: \"%10\"; font-size: 14px; background: %1; color: "
                                         "%2; border: 1px solid %3; border-radius: 4px; padding: 0 8px;"
                                         " min-height: 30px; selection-background-color: %4; selection-color: %5; }"
                                         "QLineEdit:focus { border-color: %6; }"
                                         "QLineEdit:disabled { background: %7; color: %8; border-color: %9; }");
    setStyleSheet(
        sheet
            .arg(color(SkinColor::Field), color(SkinColor::Text), color(SkinColor::FieldBorder),
                color(SkinColor::Selection), color(SkinColor::SelectionText), color(SkinColor::FieldBorderFocus),
                color(SkinColor::FieldDisabled), color(SkinColor::DisabledText), color(SkinColor::FieldBorderDisabled))
            .arg(Custom::globalFontFamily(Custom::language())));
}
