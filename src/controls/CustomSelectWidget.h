#pragma once

#include <Zanthic/CustomLineEdit.h>

/// A line edit with a button that asks the application for a value. The text can be typed as well.
class ZANTHIC_EXPORT CustomSelectWidget : public CustomLineEdit
{
    Q_OBJECT

public:
    explicit CustomSelectWidget(QWidget *parent = nullptr);
    ~CustomSelectWidget() override;

    /// The button's image for one status.
    void cSetSelectBtnImg(const QString &path, Custom::ItemStatus status = Custom::Normal);

Q_SIGNALS:
    void SigSelectBtn(); ///< the button was clicked

private Q_SLOTS:
    void OnBtnSelect();
};
