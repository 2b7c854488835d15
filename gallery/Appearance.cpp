#include "Appearance.h"

#include <Zanthic/ZanthicTheme.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

namespace {

QString after(const QStringList &names, const QString &name)
{
    return names.value((names.indexOf(name) + 1) % qMax(1, names.size()));
}

Custom::Language libraryLanguage(const QString &name)
{
    return name == QLatin1String("zh_CN") ? Custom::Zh_cn : Custom::En_us;
}

} // namespace

void setUpApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("zanthic-gallery"));
    // The platform style only helps out with metrics and fallbacks; a fixed one keeps the pictures comparable.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

Appearance::Appearance(QObject *parent) : QObject(parent) { }

Appearance::~Appearance() = default;

QStringList Appearance::skins()
{
    return ZanthicTheme::skins();
}

QStringList Appearance::languages()
{
    return { QStringLiteral("en_US"), QStringLiteral("zh_CN") };
}

void Appearance::start(const QString &skin, const QString &language, const QStringList &documents)
{
    m_language = language;
    applySkin(skin);
    Custom::addXmlPath(QStringLiteral(":/Gallery/style/GalleryStyle.xml"));
    for (const QString &document : documents)
        Custom::addXmlPath(document);
    applyLanguage(language);
}

void Appearance::applySkin(const QString &skin)
{
    if (!ZanthicTheme::applySkin(skin))
        return;
    m_skin = skin;
    setLibraryLanguage();
    Q_EMIT skinChanged(skin);
}

void Appearance::applyLanguage(const QString &language)
{
    m_language = language;
    setLibraryLanguage();
    // Installing and removing are what tells the widgets, so the library has to know the language before.
    const QPair<QTranslator *, QString> translators[] = {
        { &m_oLibraryTranslator, QStringLiteral(":/Zanthic/translations/zanthic_%1.qm") },
        { &m_oTranslator, QStringLiteral(":/Gallery/gallery_%1.qm") },
    };
    for (const auto &[translator, path] : translators) {
        QCoreApplication::removeTranslator(translator);
        if (language != languages().constFirst() && translator->load(path.arg(language)))
            QCoreApplication::installTranslator(translator);
    }
    Q_EMIT languageChanged(language);
}

void Appearance::nextSkin()
{
    applySkin(after(skins(), m_skin));
}

void Appearance::nextLanguage()
{
    applyLanguage(after(languages(), m_language));
}

void Appearance::setLibraryLanguage()
{
    // Every document taken up, a skin change included, sets the family in force back to that of the first language.
    Custom::setLanguage(libraryLanguage(m_language));
}
