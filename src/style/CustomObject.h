#pragma once

#include <Zanthic/CustomQssHelper.h>

#include <QtGui/QFont>
#include <QtWidgets/QStyle>

QT_BEGIN_NAMESPACE
class QEvent;
class QStyleOption;
QT_END_NAMESPACE

class CustomObjectData;

/// Mixed into a control that paints itself from attributes: resolves them from the style document and the control's
/// own overrides, and paints boxes and controls with them.
///
/// The mix-in is the second base class of its host. The host sets its class name in its constructor, hands
/// customEvent() to cCustomEvent() and calls cLanguageChange() on QEvent::LanguageChange:
///
/// \code
/// class Badge : public QWidget, public CustomObject
/// {
///     Q_OBJECT
/// public:
///     explicit Badge(QWidget *parent = nullptr)
///         : QWidget(parent), CustomObject(this, QString(), QStringLiteral("Default"))
///     {
///         cSetClassName(QStringLiteral("Badge"));
///     }
/// protected:
///     void customEvent(QEvent *event) override { cCustomEvent(event); }
/// };
/// \endcode
///
/// An attribute is named by a text such as "FontColor" or "BorderWidth:Left", narrowed by sub-selectors such as
/// "item" or "checked", and asked for in a status. The control's own value comes first, then the document's; without
/// either, the same attribute is looked up for Custom::Normal. The document's value "#Empty#" says that there is
/// none and stops that fallback.
///
/// No setter requests a repaint: call update() on the host.
class ZANTHIC_EXPORT CustomObject : public CustomQssHelper
{
public:
    /// \p widget is the host, not owned. \p className isn't stored, see cSetClassName().
    CustomObject(QWidget *widget, const QString &className, QString selector);
    ~CustomObject() override;

    /// \name Names
    /// \{
    void cSetClassName(const QString &className); ///< the class in the style document, in any case
    /// Styles the control by the class that is nested in \p parentClassName, and only by that.
    void cSetParentClassName(const QString &parentClassName);
    /// Chooses a variant of the class. Takes effect at the next read; call update() on a visible host.
    void cSetStyleSelector(const QString &selector) override;
    void cSetStyleSelector(Custom::CommonStyleSelector selector) override;
    /// \}

    /// \name Attributes
    /// \p ok, where given, tells whether the attribute has a value.
    /// \{
    QString cAttributeValue(const QString &attr, Custom::ItemStatus status = Custom::Normal,
        const QStringList &subs = QStringList(), bool *ok = nullptr) const;
    /// Overrides an attribute. The first override of an attribute wipes all that the document says of it, in every
    /// status and under every sub-selector, until the next skin change or cResetAllValue().
    void cSetAttributeValue(const QString &attr, const QString &value, Custom::ItemStatus status = Custom::Normal,
        const QStringList &subs = QStringList());
    /// Empties the document's values of every attribute whose key begins with \p attr, until the next skin change.
    void cClearValue(const QString &attr);
    /// Takes the document's values anew. The control's own overrides stay.
    void cResetAllValue();
    /// Takes selector, parent class, flags, values and overrides of \p other; null does nothing.
    void cCopyAttribute(CustomObject *other);
    bool cHasParameter(Custom::ObjectParameter parameter) const; ///< whether a box feature is in use
    /// Switches a box feature on or off. The document's flags are added again at a skin change.
    void cSetParameter(Custom::ObjectParameter parameter, bool on);
    /// \}

    /// \name Typed attributes
    /// \{
    QFont cFont(Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList()) const;
    /// px; the host's own size where the document has none.
    int cFontSize(
        Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList(), bool *ok = nullptr) const;
    QColor cFontColor(
        Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList(), bool *ok = nullptr) const;
    /// The host's own family where the document has none.
    QString cFontFamily(
        Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList(), bool *ok = nullptr) const;
    /// A gradient is scaled to \p rect, or to the host when that is empty.
    QBrush cBackgroundColor(Custom::ItemStatus status = Custom::Normal, const QRect &rect = QRect(),
        const QStringList &subs = QStringList(), bool *ok = nullptr) const;
    QString cBackgroundImage(
        Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList(), bool *ok = nullptr) const;
    QString cBorderImage(
        Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList(), bool *ok = nullptr) const;
    /// px. An edge without a value of its own gives 0 here; AllEdge is a value beside the four edges.
    int cBorderWidth(Custom::BorderEdge edge, Custom::ItemStatus status = Custom::Normal,
        const QStringList &subs = QStringList(), bool *ok = nullptr) const;
    /// px. AllCorner is a value beside the four corners.
    int cBorderRadius(Custom::BorderCorner corner, Custom::ItemStatus status = Custom::Normal,
        const QStringList &subs = QStringList(), bool *ok = nullptr) const;
    QBrush cBorderColor(Custom::BorderEdge edge, Custom::ItemStatus status = Custom::Normal,
        const QStringList &subs = QStringList(), const QRect &rect = QRect(), bool *ok = nullptr) const;

    /// \p size in px; above 0 it is set on the host's font at once.
    void cSetFontSize(int size, Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    /// Colours are given as texts, see Custom::string2Brush(), so that they can follow the skin.
    void cSetFontColor(
        const QString &color, Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    /// Sets the family on the host's font at once.
    void cSetFontFamily(
        const QString &family, Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    /// Family and pixel size, and the host's font. Without a host nothing happens.
    void cSetFont(
        const QFont &font, Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    void cSetBackgroundImage(
        const QString &path, Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    void cSetBackgroundColor(
        const QString &color, Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    void cSetBorderWidth(int width, Custom::BorderEdge edge = Custom::AllEdge,
        Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    void cSetBorderRadius(int radius, Custom::BorderCorner corner = Custom::AllCorner,
        Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    void cSetBorderColor(const QString &color, Custom::BorderEdge edge = Custom::AllEdge,
        Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    void cSetBorderImage(
        const QString &path, Custom::ItemStatus status = Custom::Normal, const QStringList &subs = QStringList());
    /// \}

    /// \name Fonts and language
    /// \{
    /// Whether the control keeps its own font family instead of the global one. Takes effect at the next rebuild.
    void cSetIsUserFontFamily(bool on);
    /// The control uses \p family from now on, whatever the language.
    void cSetPrivateFontFamily(const QString &family) override;
    /// To be called on QEvent::LanguageChange: gives the host the global font family when that has changed.
    void cLanguageChange() override;
    /// \}

    /// \name Events
    /// \{
    /// To be called from customEvent(): on a skin change drops the document's values and updates the host.
    void cCustomEvent(QEvent *event);
    /// To be called from resizeEvent(): gives the host a rounded window mask when ParamBorderRadius is set. Radii that
    /// change later reach the mask at the next resize.
    void cResizeEvent();
    /// Called after each cSetAttributeValue(); does nothing here.
    virtual void cNotifyUpdateValue(const QString &attribute, const QString &value, Custom::ItemStatus status);
    /// A hook for a button's own content, called after its box is painted: return true to leave out icon and text.
    virtual bool cDrawContent(QPainter *painter, QStyleOption *option);
    /// \}

    /// \name Painting
    /// \{
    /// Disabled, Pressed, Hover or Normal, in this order.
    Custom::ItemStatus cGetItemStatus(QStyle::State state) const;
    /// Paints a control of \p type into \p rect; its state comes from \p option, which may be changed.
    void cDrawWidget(Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option);
    /// Paints the background of a box. True when a colour was filled or a background image drawn.
    bool cDrawBackground(QPainter *painter, const QRect &rect, Custom::ItemStatus status = Custom::Normal,
        const QStringList &selectors = QStringList());
    /// Paints the border of a box. True when the box has a border or a border image.
    bool cDrawBorder(QPainter *painter, const QRect &rect, Custom::ItemStatus status = Custom::Normal,
        const QStringList &selectors = QStringList());
    /// Paints the colour rectangles that lie wholly inside \p rect, cut to the rounded outline.
    void cDrawColorRect(QPainter *painter, const QRect &rect);
    /// Sets the colour rectangle \p key; lower keys are painted first.
    void cSetColorRect(int key, const QRect &rect, const QBrush &brush);
    /// Fills each output that isn't null with four values.
    void cGetBorderParameter(int *borders, QSize *radii, QBrush *colors, const QRect &rect,
        Custom::ItemStatus status = Custom::Normal, const QStringList &selectors = QStringList());
    /// The size of a button; (-1, -1) without an option.
    QSize cSizeHint(QStyleOption *option) const;
    /// \}

protected:
    CustomObjectData *d; ///< the mix-in's private data, owned by CustomQssHelper

    void cDrawPushButton(
        Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option, QWidget *widget);
    void cDrawCheckBox(
        Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option, QWidget *widget);
    void cDrawComboBox(
        Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option, QWidget *widget);
    void cDrawSlider(
        Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option, QWidget *widget);

    friend class CustomObjectData;
};
