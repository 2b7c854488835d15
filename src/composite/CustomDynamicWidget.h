#pragma once

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QList>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <memory>

class CustomDynamicWidgetPrivate;

/// Where the frames of a CustomDynamicWidget come from.
enum PixmapType : int {
    PixmapHorizontal = 0, ///< a strip of frames side by side
    PixmapVertical = 1, ///< a strip of frames one below the other
    PixmapList = 2 ///< the frames of setPixmapList()
};

/// Plays a frame animation from one strip of frames or from a list of pictures. It stands outside of the style
/// system; for a GIF take QMovie.
///
/// The current frame is drawn over the whole widget. After the last one the animation stops on it and starts anew
/// next time, unless it loops.
class ZANTHIC_EXPORT CustomDynamicWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CustomDynamicWidget(QWidget *parent = nullptr);
    ~CustomDynamicWidget() override;

    /// How the next setAnimation() gets its frames; PixmapHorizontal at first.
    void setPixmapType(PixmapType type);
    /// The frames for the next setAnimation() with PixmapList.
    void setPixmapList(const QList<QPixmap> &pixmaps);
    /// Prepares \p count frames from the strip or the list, shows the first one and gives the widget its size, at the
    /// origin of its parent. What is left of a strip that doesn't divide by \p count is lost. \p intervalMs, in ms from
    /// frame to frame, is only taken by the first call. Without frames nothing is shown and the size stays.
    void setAnimation(const QPixmap &strip, short count, int intervalMs);
    /// Whether the animation starts anew after its last frame, without telling; off at first.
    void setLoop(bool loop);
    bool isLoop() const;

public Q_SLOTS:
    void startClockwise(); ///< plays, from the frame at which it was stopped; needs a setAnimation()
    void stop(); ///< halts on the current frame

Q_SIGNALS:
    /// The last frame has been shown and the animation has stopped.
    void clockwiseFinished();

protected:
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void updateClockwise();

private:
    std::unique_ptr<CustomDynamicWidgetPrivate> d;
};
