#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtWidgets/QCommonStyle>

/// The metrics of a CustomMenu.
class CMenuStyle : public QCommonStyle
{
    Q_OBJECT

public:
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
        QStyleHintReturn *returnData = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
        const QWidget *widget = nullptr) const override;
    int pixelMetric(
        PixelMetric metric, const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;
};
