#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

static void applySkin(bool dark)
{
    ZanthicTheme::applySkin(dark ? QStringLiteral("dark") : QStringLiteral("light"));
    Custom::setLanguage(Custom::En_us); // a new skin puts the font of the first language, Zh_cn, in force
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    applySkin(false);

    CustomWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *dark = new CustomCheckBox(QStringLiteral("Dark skin"), &window, CustomCheckBox::GraySwitch);
    layout->addWidget(dark);
    layout->addWidget(new CustomPushButton(QStringLiteral("Save"), &window));
    layout->addWidget(new CustomPushButton(QStringLiteral("Cancel"), &window, CustomPushButton::MiddleBase));

    QObject::connect(dark, &QCheckBox::toggled, applySkin);
    window.show();
    return QApplication::exec();
}
