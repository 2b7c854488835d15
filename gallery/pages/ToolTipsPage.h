#pragma once

#include "GalleryPage.h"

/// Tool tips: pictures of some, and buttons that show them.
class ToolTipsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ToolTipsPage(QWidget *parent = nullptr);
    ~ToolTipsPage() override;

private:
    void addPictures();
    void addButtons();
};
