#pragma once

#include <Zanthic/CustomLineEdit.h>

/// A line that shows the path of a folder or a file, with a button to choose another one. It can't be typed into.
class ZANTHIC_EXPORT CustomFolderSelectWidget : public CustomLineEdit
{
    Q_OBJECT

public:
    /// \p filter is a file filter as of QFileDialog, such as "Pictures (*.png)"; without one a folder is chosen.
    explicit CustomFolderSelectWidget(QWidget *parent = nullptr, QString filter = QString());
    ~CustomFolderSelectWidget() override;

    /// Whether a click on the button brings up a dialog, whose choice becomes the text. Off at start: a click only
    /// emits cSigSearchClicked().
    void cSetAutoSelectFolder(bool enable);

private Q_SLOTS:
    void OnBtnSelectFolder();

private:
    QString m_strFilter;
};
