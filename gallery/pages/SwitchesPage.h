#pragma once

#include "GalleryPage.h"

class CustomDotSelector;
class CustomSwitchButton;

/// Switch buttons and dot selectors.
class SwitchesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SwitchesPage(QWidget *parent = nullptr);
    ~SwitchesPage() override;

    void retranslate() override;

private:
    struct Switch
    {
        CustomSwitchButton *control;
        QVector<const char *> names;
    };

    void addLooks();
    void addChoices();
    void addDots();
    void addCustomDots();
    CustomSwitchButton *newSwitch(const QVector<const char *> &names, const QString &selector);
    /// \p selector with its current dot as text below.
    QWidget *withNumber(CustomDotSelector *selector);

    QVector<Switch> m_switches;
    CustomSwitchButton *m_pRenamed = nullptr;
    bool m_bRenamed = false;
};
