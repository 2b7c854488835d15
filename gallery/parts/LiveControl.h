#pragma once

#include <QtCore/QString>

class CustomObject;
class QWidget;

/// A control for the class \p className of a style document: the library's own where it has one by that name, else
/// a frame that is styled as that class. The names are given to it; the selector is the caller's to set.
struct LiveControl
{
    QWidget *widget = nullptr; ///< owned by the parent given
    CustomObject *object = nullptr; ///< the same control

    static LiveControl create(const QString &className, const QString &text, QWidget *parent);
};
