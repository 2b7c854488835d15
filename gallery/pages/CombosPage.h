#pragma once

#include "GalleryPage.h"

class CustomComboBox;

/// Combo boxes: their looks, several values, buttons in the list, and widgets in place of it.
class CombosPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit CombosPage(QWidget *parent = nullptr);
    ~CombosPage() override;

    void retranslate() override;

private:
    class Form;

    void addLooks();
    void addPlain();
    void addMultiple();
    void addCustomPopup();
    void addPictures();
    /// Gives \p combo the cities as items, in the user's language.
    void addCities(CustomComboBox *combo);

    CustomComboBox *m_pMulti = nullptr;
    CustomComboBox *m_pPrint = nullptr;
    Form *m_pForm = nullptr; // in its popup
    int m_nClicks = 0;
};
