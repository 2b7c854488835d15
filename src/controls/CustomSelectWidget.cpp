#include <Zanthic/CustomSelectWidget.h>

namespace {

constexpr int kHeight = 32;

} // namespace

CustomSelectWidget::CustomSelectWidget(QWidget *parent) : CustomLineEdit(parent, GrayWhite)
{
    cSetEnableSearchButton(true);
    setFixedHeight(kHeight);
    connect(this, &CustomLineEdit::cSigSearchClicked, this, &CustomSelectWidget::OnBtnSelect);
}

CustomSelectWidget::~CustomSelectWidget() = default;

void CustomSelectWidget::cSetSelectBtnImg(const QString &path, Custom::ItemStatus status)
{
    cSetSearchBackImg(path, status);
}

void CustomSelectWidget::OnBtnSelect()
{
    Q_EMIT SigSelectBtn();
}
