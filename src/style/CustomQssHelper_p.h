#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/Custom.h>

#include <QtCore/QVariant>

QT_BEGIN_NAMESPACE
class QGraphicsDropShadowEffect;
QT_END_NAMESPACE

class ZANTHIC_TEST_EXPORT CustomQssHelperData
{
public:
    explicit CustomQssHelperData(QWidget *host);
    virtual ~CustomQssHelperData();

    /// True when every bit of \p flags is set; for 0, when the control has no bit set at all.
    bool hasParameter(quint32 flags) const;
    void setParameter(quint32 flags, bool on);
    void setPrivateFontFamily(const QString &family);
    /// Null, always: the shadow operations are there and without effect.
    QGraphicsDropShadowEffect *shadowEffect(bool create);

    quint32 parameters = 0; ///< Custom::ObjectParameter bits
    QString selector;
    QWidget *widget; ///< the host, not owned
    QGraphicsDropShadowEffect *shadow = nullptr;
    QVariant userData; ///< the application's

private:
    Q_DISABLE_COPY(CustomQssHelperData)
};
