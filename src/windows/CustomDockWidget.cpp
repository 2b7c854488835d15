#include <Zanthic/CustomDockWidget.h>

namespace {

constexpr Qt::WindowFlags kFlags = Qt::Window | Qt::FramelessWindowHint;
const char s_strSheet[] = "CustomDockWidget{background-color: %1;outline:0px;border:0px;margin:0px;padding:0px;}"
                          "\t\t\t    QDockWidget::title{height:31px;}";

} // namespace

CustomDockWidget::CustomDockWidget(const QString &title, QWidget *parent, Qt::WindowFlags flags)
    : QDockWidget(title, parent, flags), CustomQssHelper(this)
{
    const QBrush background = Custom::getDataBaseColor(QStringLiteral("Custom_DockWidget_Background"));
    setStyleSheet(QString::fromLatin1(s_strSheet).arg(background.color().name()));
    setAttribute(Qt::WA_StyledBackground); // also while it is docked
    setWindowFlags(kFlags);
}

CustomDockWidget::CustomDockWidget(QWidget *parent, Qt::WindowFlags flags) : CustomDockWidget(QString(), parent, flags)
{ }

CustomDockWidget::~CustomDockWidget() = default;

bool CustomDockWidget::event(QEvent *event)
{
    return QDockWidget::event(event);
}
