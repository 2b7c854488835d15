#include <Zanthic/CustomMessageBox.h>

#include "windows/CustomMessageBox_p.h"

#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomTitleBar.h>

#include <QtCore/QEvent>
#include <QtWidgets/QBoxLayout>

namespace {

constexpr QMargins Panel_Margins(20, 0, 20, 0);

QString backgroundColor()
{
    return QStringLiteral("DB_COLOR_Custom_Message_Background");
}

/// What a static call asks for.
struct Request
{
    CustomMessageBox::HintIconStyle style;
    QString content;
    QString title;
    CustomMainWindow::Buttons buttons;
    bool links = false;
};

CustomMessageBox *newBox(QWidget *parent, const Request &request)
{
    // On the heap, since the parent may be deleted while the box is open, and deletes the box with it.
    auto *box = new CustomMessageBox(parent);
    box->cSetContent(request.content);
    box->cSetTextTitle(request.title);
    box->cSetHintStyle(request.style);
    box->cSetOpenExternalLinks(request.links);
    box->cSetButtons(request.buttons);
    return box;
}

int runModal(CustomMessageBox *box)
{
    const QPointer<CustomMessageBox> self(box);
    const int result = box->exec();
    delete self;
    return result;
}

int notify(QWidget *parent, const Request &request)
{
    CustomMessageBox *box = newBox(parent, request);
    CustomMessageBoxPrivate::get(box)->initUI();
    if (CustomMessageBoxPrivate::g_bIsRunExec)
        return runModal(box);
    box->setModal(true);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->show();
    CustomMessageBoxPrivate::g_bIsRunExec = true;
    return -1;
}

} // namespace

bool CustomMessageBoxPrivate::g_bIsRunExec = true;

CustomMessageBox::CustomMessageBox(QWidget *parent) : CustomMainWindow(parent), d(new CustomMessageBoxPrivate(this))
{
    cSetWindowLever(LeverTop);
    cEnableDefualtShadow();
    cTitleBar()->cSetTitleControls(CustomTitleBar::TitleClose);
    cTitleBar()->cSetBackgroundColor(backgroundColor(), Custom::Normal, {});
    if (auto *close = cTitleBar()->findChild<CustomPushButton *>(QStringLiteral("CloseBtn"))) {
        close->cSetParentClassName(QString());
        close->cSetStyleSelector(QStringLiteral("MessageBoxClose"));
        close->cSetBackgroundColor(backgroundColor(), Custom::Normal, {});
    }
    cSetStyleSelector(QStringLiteral("MessageBox"));
    cSetButtonsAlign(Qt::AlignCenter);

    auto *host = new CustomWidget(this);
    host->cSetBackgroundColor(backgroundColor(), Custom::Normal, {});
    auto *layout = static_cast<QHBoxLayout *>(Custom::createLayout(Qt::Horizontal));
    layout->setContentsMargins(Panel_Margins);
    layout->addWidget(d);
    host->setLayout(layout);
    // Also for a panel that takes the place of the first without standing in the layout.
    host->setMinimumSize(d->size().grownBy(Panel_Margins));
    cSetCentralWidget(host);
}

CustomMessageBox::~CustomMessageBox() = default;

void CustomMessageBox::cSetContent(const QString &content)
{
    d->m_strContent = content;
}

void CustomMessageBox::cSetTextTitle(const QString &title)
{
    d->m_strTextTitle = title;
}

void CustomMessageBox::cSetHintStyle(HintIconStyle style)
{
    d->m_eHintStyle = style;
}

void CustomMessageBox::cSetOpenExternalLinks(bool open)
{
    d->m_bOpenExternalLinks = open;
}

void CustomMessageBox::cEndSetParameter()
{
    const bool again = d->m_bBuilt;
    if (again) {
        CustomMessageBoxPrivate *before = d;
        d = new CustomMessageBoxPrivate(this);
        d->m_strContent = before->m_strContent;
        d->m_strTextTitle = before->m_strTextTitle;
        d->m_eHintStyle = before->m_eHintStyle;
        delete before;
    }
    const QPointer<CustomMessageBox> self(this);
    setWindowTitle(d->m_strTextTitle.isEmpty() ? d->m_strContent : d->m_strTextTitle);
    if (!self)
        return;
    d->initUI();
    if (again) {
        CustomMessageBoxPrivate::placePanel(this);
        d->show();
    }
}

int CustomMessageBox::warning(
    QWidget *parent, const QString &content, const QString &, Buttons buttons, const QString &textTitle)
{
    return notify(parent, { HintWarning, content, textTitle, buttons });
}

int CustomMessageBox::information(QWidget *parent, const QString &content, const QString &, Buttons buttons,
    const QString &textTitle, bool openExternalLinks)
{
    return notify(parent, { HintInformation, content, textTitle, buttons, openExternalLinks });
}

int CustomMessageBox::error(
    QWidget *parent, const QString &content, const QString &, Buttons buttons, const QString &textTitle)
{
    return notify(parent, { HintError, content, textTitle, buttons });
}

int CustomMessageBox::simple(QWidget *parent, const QString &content, const QString &textTitle, const QString &,
    HintIconStyle style, bool openExternalLinks)
{
    return notify(parent, { style, content, textTitle, ButtonOk, openExternalLinks });
}

int CustomMessageBox::ask(
    QWidget *parent, const QString &content, const QString &, Buttons buttons, const QString &textTitle, bool largeSize)
{
    CustomMessageBox *box = newBox(parent, { HintAsk, content, textTitle, buttons });
    box->d->m_bLargeSize = largeSize;
    box->d->initUI();
    return runModal(box);
}

int CustomMessageBox::askYesNo(QWidget *parent, const QString &content, const QString &textTitle, bool largeSize)
{
    CustomMessageBox *box = newBox(parent, { HintAsk, content, textTitle, ButtonOk | ButtonCancel });
    box->d->m_bLargeSize = largeSize;
    box->d->m_bYesNo = true;
    box->cResetCustomButtonNames({ tr("Yes"), tr("No") });
    box->d->initUI();
    return runModal(box);
}

void CustomMessageBox::changeEvent(QEvent *event)
{
    CustomMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && d->m_bYesNo)
        cResetCustomButtonNames({ tr("Yes"), tr("No") });
}

void CustomMessageBox::resizeEvent(QResizeEvent *event)
{
    CustomMainWindow::resizeEvent(event);
    CustomMessageBoxPrivate::placePanel(this);
}
