#pragma once

#include "GalleryPage.h"

/// Line edits, fields with a button to choose a value, and text edits.
class FieldsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit FieldsPage(QWidget *parent = nullptr);
    ~FieldsPage() override;

    void retranslate() override;

private:
    void addLooks();
    void addBehaviour();
    void addChoosing();
    void addTextEdits();
    void search(const QString &words);
    void showSearched();

    TextLabel *m_pSearched = nullptr;
    QString m_searched;
};
