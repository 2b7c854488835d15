#pragma once

#include "GalleryPage.h"

class CustomDockWidget;
class CustomToolBar;

QT_BEGIN_NAMESPACE
class QMainWindow;
QT_END_NAMESPACE

/// Dock widgets and a tool bar in a window of Qt's, as an application uses them.
class DocksPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit DocksPage(QWidget *parent = nullptr);
    ~DocksPage() override;

protected:
    void customEvent(QEvent *event) override;

private:
    void addWindow();
    void addPictures();
    CustomToolBar *createToolBar();
    QWidget *createContent();
    /// Adds a dock with a title that is translated, and with lines of texts that are check boxes.
    void addDock(const char *title, const QVector<const char *> &options);
    void showDocks(Qt::DockWidgetArea area);

    QMainWindow *m_pWindow = nullptr;
    QList<CustomDockWidget *> m_lstDocks;
};
