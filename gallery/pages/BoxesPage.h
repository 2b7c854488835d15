#pragma once

#include "GalleryPage.h"

/// Boxes as the style engine paints them: widths, corners, colours of edges, gradients, images, border styles.
class BoxesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit BoxesPage(QWidget *parent = nullptr);
    ~BoxesPage() override;

private:
    void addWidths();
    void addRadii();
    void addEdges();
    void addGradients();
    void addImages();
    void addStyles();
};
