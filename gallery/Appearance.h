#pragma once

#include <Zanthic/Custom.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTranslator>

/// Makes the application object look the same wherever the gallery runs. Call it once, after creating that object.
void setUpApplication();

/// The skin and the language of the whole program: the application's side of both changes in one place.
class Appearance : public QObject
{
    Q_OBJECT

public:
    explicit Appearance(QObject *parent = nullptr);
    ~Appearance() override;

    static QStringList skins(); ///< the names that applySkin() takes
    static QStringList languages(); ///< the names that applyLanguage() takes

    /// Takes up the gallery's own style document and sets both; to be called once, before any widget is made.
    void start(const QString &skin, const QString &language, const QStringList &documents = {});
    QString skin() const { return m_skin; }
    QString language() const { return m_language; }

    void applySkin(const QString &skin);
    void applyLanguage(const QString &language);
    void nextSkin();
    void nextLanguage();

Q_SIGNALS:
    void skinChanged(const QString &skin);
    void languageChanged(const QString &language);

private:
    void setLibraryLanguage();

    QTranslator m_oLibraryTranslator; // of the library's own texts
    QTranslator m_oTranslator; // of the gallery's
    QString m_skin;
    QString m_language;
};
