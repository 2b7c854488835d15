#pragma once

#include "GalleryPage.h"

#include <Zanthic/CustomDynamicWidget.h>

/// Frame animations from strips and from a list.
class AnimationPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit AnimationPage(QWidget *parent = nullptr);
    ~AnimationPage() override;

protected:
    void customEvent(QEvent *event) override;

private:
    struct Animation
    {
        CustomDynamicWidget *widget;
        PixmapType type;
    };

    void addAnimations();
    void addSteering();
    /// Paints the frames in the colours of the skin and shows the first one.
    void takeFrames();

    QVector<Animation> m_animations;
    int m_nFinished = 0;
};
