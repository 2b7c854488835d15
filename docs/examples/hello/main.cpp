#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    ZanthicTheme::applySkin(QStringLiteral("light"));

    CustomWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *dark = new CustomCheckBox(QStringLiteral("Dark skin"), &window, CustomCheckBox::GraySwitch);
    layout->addWidget(dark);
    layout->addWidget(new CustomPushButton(QStringLiteral("Save"), &window));
    layout->addWidget(new CustomPushButton(QStringLiteral("Cancel"), &window, CustomPushButton::MiddleBase));

    QObject::connect(dark, &QCheckBox::toggled,
        [](bool on) { ZanthicTheme::applySkin(on ? QStringLiteral("dark") : QStringLiteral("light")); });
    window.show();
    return QApplication::exec();
}
