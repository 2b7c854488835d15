#pragma once

#include <Zanthic/Custom.h>

#include <QtCore/QPointF>
#include <QtCore/QVariant>

class CustomQssHelperData;

/// Mixed into a control that is styled by a Qt style sheet: gives it a selector and the language as properties that
/// the sheet can select on. A control that paints itself mixes in CustomObject instead.
///
/// The mix-in is the second base class of its host and lives as long as it.
class ZANTHIC_EXPORT CustomQssHelper
{
public:
    /// \p widget is the host, not owned. The selector is empty.
    explicit CustomQssHelper(QWidget *widget);
    virtual ~CustomQssHelper();

    /// Stores the selector. A style sheet sees it when the widget is polished again.
    virtual void cSetStyleSelector(const QString &selector);
    virtual void cSetStyleSelector(Custom::CommonStyleSelector selector);
    /// The control keeps its own font family from now on; in the style sheet that it has at this moment, \p family
    /// takes the place of the families of both languages.
    virtual void cSetPrivateFontFamily(const QString &family);
    /// Without effect in this version, like the other operations on the shadow.
    virtual void cSetShadowEnable(bool enable, QWidget *target = nullptr);
    /// To be called on QEvent::LanguageChange: polishes the host again when the font family has changed.
    virtual void cLanguageChange();

    QString cStyleSelector() const; ///< the current selector
    QString cLanguageString() const; ///< "Zh_cn" or "En_us"; empty while there is no style data

    /// A value of the application's own; unused by the library.
    void cSetUserData(const QVariant &data);
    QVariant cUserData() const;

    /// Hands a key press to the application's hot keys, see Custom::registerHotKey().
    void cRespondHotKey(QKeyEvent *event);

    bool cShadowEnable() const; ///< false in this version
    void cSetShadowBulrRadius(float radius); ///< the name is misspelled and stays
    float cShadowBulrRadius() const; ///< 0 in this version
    void cSetShadowOffset(const QPointF &offset);
    QPointF cShadowOffset() const; ///< (0, 0) in this version
    void cSetShadowColor(const QColor &color);
    QColor cShadowColor() const; ///< invalid in this version

protected:
    /// Takes over \p data, which a derived class made.
    explicit CustomQssHelper(CustomQssHelperData *data);

    CustomQssHelperData *d; ///< owned

private:
    Q_DISABLE_COPY(CustomQssHelper)
};
