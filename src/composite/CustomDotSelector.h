#pragma once

#include <Zanthic/CustomWidget.h>

#include <memory>

class CustomDotSelectorPrivate;

/// A row of dots joined by a line, of which one is current: a small indicator of steps or pages that the user can
/// click. It tells nothing of a click; the application reads cCurrentDot(), for example by a timer or when it needs it.
///
/// Colours are names or "#RRGGBB" texts of QColor; names of skin colours aren't followed here.
class ZANTHIC_EXPORT CustomDotSelector : public CustomWidget
{
    Q_OBJECT

public:
    explicit CustomDotSelector(QWidget *parent = nullptr);
    ~CustomDotSelector() override;

    void cSetDotNumber(int number); ///< 0 at first; below 1 nothing is painted
    /// The current dot, from 0. Any number is kept; without a dot of that number none is current.
    void cSetCurrentDot(int dot);
    int cCurrentDot() const;

    /// Override attributes of the document. "Lint" is misspelled and stays.
    void cSetLintColor(const QString &color);
    void cSetLineThickness(int thickness); ///< px
    void cSetDotColor(const QString &normal, const QString &select);
    void cSetDotRadius(int normal, int select); ///< px

    QSize sizeHint() const override;
    void cNotifyUpdateValue(const QString &attribute, const QString &value, Custom::ItemStatus status) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    std::unique_ptr<CustomDotSelectorPrivate> d;
};
