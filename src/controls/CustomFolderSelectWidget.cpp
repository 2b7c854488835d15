#include <Zanthic/CustomFolderSelectWidget.h>

#include "platform/KorvInterface_p.h"

#include <Zanthic/CustomPushButton.h>

#include <QtCore/QDir>
#include <QtCore/QPointer>

namespace {

constexpr int kHeight = 32;

} // namespace

CustomFolderSelectWidget::CustomFolderSelectWidget(QWidget *parent, QString filter)
    : CustomLineEdit(parent, GrayWhite), m_strFilter(std::move(filter))
{
    cSetEnableSearchButton(true);
    getSearchButton()->cSetStyleSelector(QStringLiteral("FolderSelect"));
    setFixedHeight(kHeight);
    setReadOnly(true);
}

CustomFolderSelectWidget::~CustomFolderSelectWidget() = default;

void CustomFolderSelectWidget::cSetAutoSelectFolder(bool enable)
{
    disconnect(this, &CustomLineEdit::cSigSearchClicked, this, &CustomFolderSelectWidget::OnBtnSelectFolder);
    if (enable)
        connect(this, &CustomLineEdit::cSigSearchClicked, this, &CustomFolderSelectWidget::OnBtnSelectFolder);
}

void CustomFolderSelectWidget::OnBtnSelectFolder()
{
    const QPointer<CustomFolderSelectWidget> self(this);
    QString path = text();
    if (path.isEmpty())
        path = QDir(QDir::homePath()).absolutePath();
    if (m_strFilter.isEmpty())
        path = Custom::getExistingDirectory(
            this, tr("Open Directory"), path, QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    else
        path = KorvInterface::getOpenFileName(nullptr, tr("Select File."), path, m_strFilter, nullptr, {});
    if (self && !path.isEmpty())
        setText(path);
}
