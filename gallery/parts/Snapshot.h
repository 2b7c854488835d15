#pragma once

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <functional>

/// A picture of what otherwise needs a window of its own: a menu, a dialog, a tool tip. It is taken when it is first
/// needed, and again with each skin and language.
class Snapshot : public QWidget
{
    Q_OBJECT

public:
    using Take = std::function<QPixmap()>;

    explicit Snapshot(Take take, QWidget *parent = nullptr);
    ~Snapshot() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// \p window as it would stand on the screen, with corners of \p radius px. It must be hidden, and
    /// stays so.
    static QPixmap ofWindow(QWidget *window, int radius);
    /// Shows \p window, a child of what stays hidden, and each part of it that hasn't been hidden on purpose: what
    /// would happen to it on a screen.
    static void showAll(QWidget *window);
    /// \p picture without what lies outside of corners of \p radius px.
    static QPixmap rounded(const QPixmap &picture, int radius);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    void ensureTaken() const;
    void discard();

    Take m_take;
    mutable QPixmap m_picture;
};
