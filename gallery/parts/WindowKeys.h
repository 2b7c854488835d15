#pragma once

#include <QtCore/QObject>

/// Gives Ctrl+T, Ctrl+L and Ctrl+E to the gallery's window in every field too, which would claim some control keys for
/// itself: Ctrl+E goes to the end of a line.
class WindowKeys : public QObject
{
    Q_OBJECT

public:
    /// Serves the whole program while \p owner lives.
    explicit WindowKeys(QObject *owner);
    ~WindowKeys() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
