#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    ZanthicTheme::applySkin(QStringLiteral("light"));

    auto *content = new CustomWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(new CustomLineEdit(QStringLiteral("A text"), content));
    auto *dark = new CustomCheckBox(QStringLiteral("Dark skin"), content, CustomCheckBox::GraySwitch);
    layout->addWidget(dark);
    QObject::connect(dark, &QCheckBox::toggled,
        [](bool on) { ZanthicTheme::applySkin(on ? QStringLiteral("dark") : QStringLiteral("light")); });

    CustomMainWindow window;
    window.cTitleBar()->cSetTitleText(QStringLiteral("Hello"));
    window.cSetCentralWidget(content);
    window.cSetButtons(CustomMainWindow::ButtonOk | CustomMainWindow::ButtonCancel);
    window.cSetStrechEdges(
        CustomMainWindow::StrechRight | CustomMainWindow::StrechBottom | CustomMainWindow::StrechBottomRight);
    window.show();
    return QApplication::exec();
}
