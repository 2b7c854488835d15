#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QMenu>

QT_BEGIN_NAMESPACE
class QStyleOptionMenuItem;
QT_END_NAMESPACE

class CInterWidgetMenu;

/// A themed menu: its body is a themed box, and each action is painted with the attributes under the sub-selector
/// "item". Items are 30 px high whatever the font. The mark of a checked item stands at the trailing side, where the
/// arrow of a submenu is. With a style sheet of its own it is painted as a plain QMenu.
class ZANTHIC_EXPORT CustomMenu : public QMenu, public CustomObject
{
    Q_OBJECT

public:
    explicit CustomMenu(QWidget *parent = nullptr);
    explicit CustomMenu(const QString &title, QWidget *parent = nullptr);
    ~CustomMenu() override;

    /// Adds a submenu that shows \p widget in place of actions, see CInterWidgetMenu. The submenu belongs to this menu.
    CInterWidgetMenu *cAddCustomWidgetMenu(QWidget *widget);

    /// \name Values of items
    /// They are kept under attributes of their own, "FontColoritem" and the like, for a drawActionItem() that reads
    /// them. This class's own painting takes its items' values from the theme.
    /// \{
    void cSetItemFontColor(const QColor &color, Custom::ItemStatus status = Custom::Normal);
    void cSetItemBackgroundColor(const QColor &color, Custom::ItemStatus status = Custom::Normal);
    void cSetItemBackgroundImage(const QString &path, Custom::ItemStatus status = Custom::Normal);
    /// \}

    /// Paints one action into the rectangle of \p option, to which \p painter is clipped. Null does nothing.
    virtual void drawActionItem(QStyleOptionMenuItem *option, QPainter *painter);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;
};
