#include "ZanthicTheme.h"

#include "ZanthicThemeData.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/Custom.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QResource>

#include <array>

namespace {

struct Skin
{
    const char *name;
    const uchar *resources;
};

constexpr std::array<Skin, 2> kSkins{ { { "light", zanthicThemeLight }, { "dark", zanthicThemeDark } } };

const Skin *findSkin(const QString &name)
{
    for (const Skin &skin : kSkins) {
        if (name == QLatin1String(skin.name))
            return &skin;
    }
    return nullptr;
}

// The resources that are registered with Qt. They lie in this library, so they are taken back when it goes.
class Registration
{
public:
    // Registering here makes Qt's list of resources older than this object, so that it outlives it.
    Registration() : m_common(QResource::registerResource(zanthicThemeCommon)) { }
    ~Registration()
    {
        if (m_skin)
            QResource::unregisterResource(m_skin->resources);
        if (m_common)
            QResource::unregisterResource(zanthicThemeCommon);
    }
    Q_DISABLE_COPY(Registration)

    const Skin *skin() const { return m_skin; }

    bool apply(const Skin &skin)
    {
        if (&skin == m_skin)
            return true;
        // The new skin comes first, so that a failure leaves the old one in place.
        if (!m_common || !QResource::registerResource(skin.resources))
            return false;
        if (m_skin)
            QResource::unregisterResource(m_skin->resources);
        m_skin = &skin;
        return true;
    }

private:
    bool m_common;
    const Skin *m_skin = nullptr;
};

Registration &registration()
{
    static Registration instance;
    return instance;
}

} // namespace

QStringList ZanthicTheme::skins()
{
    QStringList names;
    for (const Skin &skin : kSkins)
        names += QLatin1String(skin.name);
    return names;
}

QString ZanthicTheme::currentSkin()
{
    const Skin *skin = registration().skin();
    return skin ? QString::fromLatin1(skin->name) : QString();
}

namespace {

// The documents of a new skin put the font of the first language in force. This puts that of the current language back
// before the first widget is told of the skin, so that none sees another font.
class FontKeeper : public QObject
{
public:
    FontKeeper()
    {
        if (QCoreApplication *application = QCoreApplication::instance())
            application->installEventFilter(this);
    }
    // Where there was no widget to tell.
    ~FontKeeper() override { keepFont(); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (int(event->type()) == ChangeSkinEvent::EventType) {
            keepFont();
            QCoreApplication::instance()->removeEventFilter(this);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void keepFont()
    {
        if (!m_bKept)
            Custom::setLanguage(Custom::language());
        m_bKept = true;
    }

    bool m_bKept = false;
};

} // namespace

bool ZanthicTheme::applySkin(const QString &name)
{
    const Skin *skin = findSkin(name);
    if (!skin || !registration().apply(*skin))
        return false;
    const FontKeeper keeper;
    Custom::changeSkin();
    return true;
}
