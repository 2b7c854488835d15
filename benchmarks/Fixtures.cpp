#include "Fixtures.h"

#include <Zanthic/Custom.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <malloc.h>
#include <unistd.h>

namespace {

constexpr int Cell_Width = 60;
constexpr int Cell_Height = 26;
constexpr int kColumns = 100;

// A colour of the theme as style sheets write it.
QString color(const char *name)
{
    return Custom::color2String(Custom::getDataBaseColor(QLatin1String(name)).color());
}

} // namespace

void Fixtures::useTheme()
{
    if (ZanthicTheme::currentSkin() == QLatin1String("light"))
        return;
    ZanthicTheme::applySkin(QStringLiteral("light"));
    // One plain font for everybody: shaping a text takes longer in some fonts than painting all the rest.
    const QString family = QStringLiteral("DejaVu Sans");
    Custom::setGlobalFontFamily(Custom::En_us, family);
    Custom::setLanguage(Custom::En_us);
    QFont font(family);
    font.setPixelSize(14);
    QApplication::setFont(font);
}

QString Fixtures::equivalentSheet(bool dark)
{
    useTheme();
    const QString background = dark ? QStringLiteral("#3f7fe0") : color("Custom_Accent");
    return QStringLiteral("QPushButton { background-color: %1; border: 1px solid %2; border-radius: 4px;"
                          " color: %3; font-size: 14px; padding: 2px 4px; }"
                          "QPushButton:hover { background-color: %4; border-color: %4; }"
                          "QPushButton:pressed { background-color: %5; border-color: %5; }"
                          "QPushButton:disabled { background-color: %6; color: %7; border-color: %6; }"
                          "QCheckBox { color: %8; font-size: 14px; spacing: 10px; }"
                          "QCheckBox::indicator { width: 18px; height: 18px; background-color: %9;"
                          " border: 1px solid %10; border-radius: 4px; }"
                          "QCheckBox::indicator:checked { background-color: %1; border-color: %1;"
                          " image: url(:/Zanthic/Control/Menu_Tick.png); }"
                          "QCheckBox::indicator:checked:hover { background-color: %4; border-color: %4; }"
                          "QComboBox { background-color: %9; border: 1px solid %10; border-radius: 4px; color: %8;"
                          " font-size: 14px; padding-left: 7px; }"
                          "QComboBox:hover { border-color: %4; }"
                          "QComboBox::drop-down { border: 0px; width: 28px; }"
                          "QComboBox::down-arrow { image: url(:/Zanthic/Control/Arrow_down.png); }"
                          "QMenu { background-color: %9; border: 1px solid %10; border-radius: 4px; padding: 6px 3px; }"
                          "QMenu::item { color: %8; font-size: 14px; height: 30px; padding: 0px 30px; }"
                          "QMenu::item:selected { background-color: %4; }")
        .arg(background, color("Custom_Accent"), color("Custom_Accent_Text"), color("Custom_Accent_Hover"),
            color("Custom_Accent_Pressed"), color("Custom_Accent_Disabled"), color("Custom_Accent_Text_Disabled"),
            color("Custom_Font"), color("Custom_Indicator"))
        .arg(color("Custom_Indicator_Border"));
}

QString Fixtures::imageSheet()
{
    useTheme();
    const QString image = QStringLiteral("QCheckBox::indicator:%1 { image: url(:/Zanthic/Control/CheckBox_%2.png); }");
    return QStringLiteral("QCheckBox { color: %1; font-size: 14px; spacing: 10px; }"
                          "QCheckBox::indicator { width: 20px; height: 20px; }")
               .arg(color("Custom_Font"))
        + image.arg(QStringLiteral("unchecked"), QStringLiteral("unchecked_Default"))
        + image.arg(QStringLiteral("checked"), QStringLiteral("checked_Default"))
        + image.arg(QStringLiteral("checked:hover"), QStringLiteral("checked_Default_Hover"));
}

std::unique_ptr<QWidget> Fixtures::shownWindow(int count, const std::function<QWidget *(QWidget *)> &make)
{
    auto window = std::make_unique<QWidget>();
    for (int i = 0; i < count; ++i)
        make(window.get())
            ->setGeometry(i % kColumns * Cell_Width, i / kColumns * Cell_Height, Cell_Width - 2, Cell_Height - 2);
    window->resize(kColumns * Cell_Width, (count + kColumns - 1) / kColumns * Cell_Height);
    window->show();
    settle();
    return window;
}

void Fixtures::settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

void Fixtures::paintInto(QImage *image, QWidget *widget)
{
    widget->render(image, QPoint(), QRegion(), QWidget::RenderFlags());
}

double Fixtures::residentKiB()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0.0;
    const QByteArrayList pages = file.readAll().split(' ');
    return pages.value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1024.0;
}
