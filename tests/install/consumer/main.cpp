#include <QtWidgets/QApplication>
#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const bool applied = ZanthicTheme::applySkin(QStringLiteral("dark"));
    CustomPushButton button(QStringLiteral("Hello"));
    return applied && button.cFontColor().isValid() && Custom::version().startsWith(QLatin1String("V2.0.0_")) ? 0 : 1;
}
