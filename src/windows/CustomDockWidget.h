#pragma once

#include <Zanthic/CustomQssHelper.h>

#include <QtWidgets/QDockWidget>

/// A dock widget with the theme's background that is a frameless window of its own: also one with a main window for
/// its parent floats until it is docked, by QMainWindow::addDockWidget() and then setFloating(false) and show(). It
/// takes the background of the skin that is in force when it is made and doesn't follow a change of skin.
class ZANTHIC_EXPORT CustomDockWidget : public QDockWidget, public CustomQssHelper
{
    Q_OBJECT
    Q_PROPERTY(QString StyleSelector READ cStyleSelector WRITE cSetStyleSelector)
    Q_PROPERTY(QString LanguageString READ cLanguageString)

public:
    /// \p flags don't count: they become Qt::Window | Qt::FramelessWindowHint.
    explicit CustomDockWidget(
        const QString &title, QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    explicit CustomDockWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~CustomDockWidget() override;

protected:
    bool event(QEvent *event) override;
};
