#pragma once

#include <Zanthic/CustomFrame.h>

/// A box of the gallery's own class in the style document, for overrides to show on.
class BoxSpecimen : public CustomFrame
{
    Q_OBJECT

public:
    static constexpr QSize Size = QSize(112, 72); ///< px

    explicit BoxSpecimen(QWidget *parent = nullptr);
    ~BoxSpecimen() override;
};

/// A rounded box with colour rectangles: strips that stop at its corners, and one that sticks out and is left out.
class ColorRectSpecimen : public BoxSpecimen
{
    Q_OBJECT

public:
    explicit ColorRectSpecimen(QWidget *parent = nullptr);
    ~ColorRectSpecimen() override;

protected:
    void customEvent(QEvent *event) override;

private:
    void takeSkinColors();
};

/// A border in a line style that no style document gives, drawn by the geometry alone.
class BorderStyleSpecimen : public QWidget
{
    Q_OBJECT

public:
    explicit BorderStyleSpecimen(Custom::BorderStyle style, int radius, QWidget *parent = nullptr);
    ~BorderStyleSpecimen() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Custom::BorderStyle m_style;
    int m_nRadius;
};
