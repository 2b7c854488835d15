#include "style/StyleHost.h"

#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtXml/QDomDocument>

#include <cmath>

namespace {

const auto kPage = "DB_COLOR_Custom_Window_Background"_s;
const auto kColorPath = ":/Zanthic/QSS/SkinColor.xml"_s;

// Taken before there is an application object.
const QString skinBeforeFirst = ZanthicTheme::currentSkin();
const bool appliedBeforeApplication = ZanthicTheme::applySkin("dark"_s);
const QColor pageBeforeApplication = Custom::string2Color(kPage);

constexpr double kTextContrast = 4.5;
constexpr double kIndicatorContrast = 3.0;

QByteArray bytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The elements below another, each as "tag Name Id text".
QStringList elements(const QDomElement &parent)
{
    QStringList result;
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString text = child.firstChildElement().isNull() ? child.text() : QString();
        result += child.tagName() + ' ' + child.attribute("Name"_s) + child.attribute("Id"_s) + ' ' + text;
        result += elements(child);
    }
    return result;
}

QStringList elements(const QString &path)
{
    QDomDocument document;
    document.setContent(bytes(path));
    return elements(document.documentElement());
}

QColor over(const QColor &front, const QColor &back)
{
    const double a = front.alphaF();
    return QColor::fromRgbF(front.redF() * a + back.redF() * (1 - a), front.greenF() * a + back.greenF() * (1 - a),
        front.blueF() * a + back.blueF() * (1 - a));
}

double luminance(const QColor &color)
{
    const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// The contrast ratio of the Web Content Accessibility Guidelines, from 1 to 21.
double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({ luminance(a), luminance(b) });
    return (light + 0.05) / (dark + 0.05);
}

void requireContrast(const QColor &a, const QColor &b, double ratio)
{
    QVERIFY2(contrast(a, b) >= ratio, qPrintable(QStringLiteral("%1 on %2").arg(a.name(), b.name())));
}

QColor skinColor(const QString &name)
{
    return Custom::getDataBaseColor(QLatin1String("Custom_") + name).color();
}

// Along the middle row of an indicator at scale 2: the outline first, then what it is filled with.
void readIndicator(const QImage &image, QColor *edge, double *markContrast)
{
    constexpr int kFillOffset = 4; // px behind the outline, which is 2 px wide
    const int y = image.height() / 2;
    int x = 0;
    while (x + kFillOffset < image.width() && image.pixelColor(x, y).alpha() < 255)
        ++x;
    *edge = image.pixelColor(x, y);
    const QColor fill = image.pixelColor(x + kFillOffset, y);
    for (int column = x + kFillOffset; column < image.width() - x - kFillOffset; ++column)
        *markContrast = std::max(*markContrast, contrast(over(image.pixelColor(column, y), fill), fill));
}

// The most that a pixel of a button's picture stands out from its ground, which is that at the middle of the left edge.
double markContrast(const QImage &image, const QColor &page)
{
    const QColor ground = over(image.pixelColor(0, image.height() / 2), page);
    double result = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            result = std::max(result, contrast(over(image.pixelColor(x, y), page), ground));
    }
    return result;
}

} // namespace

class TestThemeFiles : public StyleTest
{
    Q_OBJECT

private:
    void checkIndicator(const StyleHost &host, Custom::ItemStatus status, const QString &suffix)
    {
        const bool isSwitch = host.cStyleSelector().endsWith("Switch"_s);
        QString path = host.cBackgroundImage(status, { suffix });
        m_lstLooks += bytes(path);
        QCOMPARE(QImage(path).size(), isSwitch ? QSize(48, 32) : QSize(20, 20));
        QColor edge;
        double mark = 0;
        readIndicator(QImage(path.insert(path.size() - 4, "@2x"_s)), &edge, &mark);
        if (status == Custom::Disabled)
            return;
        QVERIFY2((!isSwitch && suffix == "unchecked"_s) || mark >= kIndicatorContrast, qPrintable(path));
        for (const auto &page : { skinColor("Window_Background"_s), skinColor("Surface"_s) }) {
            requireContrast(edge, page, kIndicatorContrast);
            requireContrast(host.cFontColor(status), page, kTextContrast);
        }
    }

    void checkBox(const StyleHost &host, Custom::ItemStatus status)
    {
        const QColor background = host.cBackgroundColor(status).color();
        const QColor border = host.cBorderColor(Custom::AllEdge, status).color();
        const QColor text = host.cFontColor(status);
        QVERIFY(host.cHasParameter(Custom::ParamBackgroundColor) && background.isValid() && text.isValid());
        if (host.cHasParameter(Custom::ParamBorderWidth)) {
            const auto colorAndRadius = Custom::ObjectParameter(Custom::ParamBorderColor | Custom::ParamBorderRadius);
            QVERIFY(border.isValid() && host.cHasParameter(colorAndRadius));
            QCOMPARE(host.cBorderWidth(Custom::AllEdge, status), 1);
            QCOMPARE(host.cBorderRadius(Custom::AllCorner, status), 4);
        }
        if (!m_bControl)
            return;
        m_lstLooks += (Custom::color2String(background) + text.name() + border.name()).toLatin1();
        for (const auto &page : { skinColor("Window_Background"_s), skinColor("Surface"_s) }) {
            const QColor fill = over(background, page);
            const QColor edge = host.cHasParameter(Custom::ParamBorderWidth) ? over(border, fill) : fill;
            requireContrast(text, fill, status == Custom::Disabled ? 1 : kTextContrast);
            // A border in the colour of the fill is no line of its own.
            requireContrast(edge, page, status == Custom::Disabled || edge == fill ? 1 : kIndicatorContrast);
        }
    }

    // Styled as the row says: a class, or an outer class and the one in it.
    std::unique_ptr<StyleHost> hostOf(const QString &selector)
    {
        auto host = std::make_unique<StyleHost>(cell("class").section('/', -1), selector);
        host->cSetParentClassName(cell("class").section('/', -2, -2));
        return host;
    }

    bool m_bControl = false; // what is styled has a text and statuses
    QList<QByteArray> m_lstLooks; // of all statuses, each to be told from the others

private Q_SLOTS:
    void skinMayComeBeforeTheApplication()
    {
        QVERIFY(skinBeforeFirst.isEmpty() && appliedBeforeApplication && pageBeforeApplication.isValid());
    }

    void applySkinReplacesFilesAndTellsWidgets()
    {
        struct Counter : QWidget
        {
            int count = 0;
            QString family;
            void customEvent(QEvent *event) override
            {
                count += event->type() == ChangeSkinEvent::EventType;
                family = Custom::globalFontFamily();
            }
        } counter;
        QList<QByteArray> images;
        QList<double> pages;
        for (const auto &skin : { "light"_s, "dark"_s, "light"_s }) {
            QVERIFY(ZanthicTheme::applySkin(skin));
            // Whoever looks while it is told of the skin finds the font of the language, not that of the first one.
            QCOMPARE(counter.family, Custom::globalFontFamily(Custom::En_us));
            for (const auto &unknown : { ""_s, "Light"_s, "sepia"_s })
                QVERIFY(!ZanthicTheme::applySkin(unknown) && ZanthicTheme::currentSkin() == skin);
            pages += luminance(Custom::string2Color(kPage));
            images += bytes(":/Zanthic/Control/CheckBox_checked_Default.png"_s);
        }
        QVERIFY(counter.count == 3 && pages.at(1) < pages.at(0) && pages.at(2) == pages.at(0));
        QVERIFY(images.at(1) != images.at(0) && images.at(2) == images.at(0));
        QCOMPARE(ZanthicTheme::skins().join(' '), "light dark"_s);
    }

    void skinsHoldTheSameKeysOnceAndInTheSameOrder()
    {
        const QStringList light = ZanthicTheme::applySkin("light"_s) ? elements(kColorPath) : QStringList();
        QVERIFY(ZanthicTheme::applySkin("dark"_s));
        QCOMPARE(elements(kColorPath), light);
        QStringList shouted = light.join('\n').toUpper().split('\n');
        QVERIFY(light.size() > 50 && shouted.removeDuplicates() == 0);
    }

    void everyNameAndImageResolves()
    {
        for (const QString &skin : ZanthicTheme::skins()) {
            QVERIFY(ZanthicTheme::applySkin(skin));
            for (const QString &key : elements(kColorPath).filter(QRegularExpression("^Color "_s)))
                QVERIFY2(Custom::getDataBaseColor(key.mid(6).trimmed()).style() == Qt::SolidPattern, qPrintable(key));
            int paths = 0;
            for (const QString &element : elements(":/Zanthic/QSS/CustomStyleSheet.xml"_s)) {
                QString text = element.section(' ', 2);
                const bool isPath = text.startsWith(':');
                const bool isColor = !isPath && !text.isEmpty() && element.section(' ', 0, 0).contains("Color"_s);
                // The dots know no skin colours: one colour serves all skins.
                if (element.contains(QRegularExpression("^(Lint|NormalDot|SelectDot)Color "_s))) {
                    for (const auto &page : { skinColor("Window_Background"_s), skinColor("Surface"_s) })
                        requireContrast(QColor(text), page, kIndicatorContrast);
                    continue;
                }
                const bool isKnown = text.startsWith("DB_COLOR_"_s) && Custom::string2Color(text).isValid();
                QVERIFY2((!isColor || isKnown) && (!isPath || QFile::exists(text)), qPrintable(element));
                if (!text.endsWith(".png"_s))
                    continue;
                const QSize size = QImage(text).size();
                QVERIFY2(!size.isEmpty(), qPrintable(text));
                QVERIFY2(QImage(text.insert(text.size() - 4, "@2x"_s)).size() == size * 2, qPrintable(text));
                ++paths;
            }
            QVERIFY(paths > 50);
        }
    }

    void sheetsAreFilled_data() { addRowsOf("cases/sheets.txt"_s, { "type", "tag" }); }
    void sheetsAreFilled()
    {
        const auto type = Custom::StyleSheetType(number("type"));
        for (const QString &skin : ZanthicTheme::skins()) {
            QVERIFY(ZanthicTheme::applySkin(skin));
            QString sheet = Custom::styleSheet(type);
            QCOMPARE(sheet.contains("*PaddingLeft*"_s), type == Custom::SheetLineEdit); // which fills it itself
            sheet.replace("*PaddingLeft*"_s, "0"_s);
            QVERIFY(!sheet.isEmpty() && !sheet.contains(QRegularExpression("@|##|\\*|DB_COLOR_"_s)));
            for (Custom::Language language : { Custom::Zh_cn, Custom::En_us })
                QCOMPARE(!sheet.contains(Custom::globalFontFamily(language)),
                    type == Custom::SheetScrollBar || type == Custom::SheetSlider);
            for (auto match = QRegularExpression("url\\(([^)]+)\\)"_s).globalMatch(sheet); match.hasNext();)
                QVERIFY(!QImage(match.next().captured(1)).isNull());
            // A sheet that Qt can't parse is dropped as a whole, with a warning.
            QWidget widget;
            widget.setStyleSheet(sheet);
            widget.ensurePolished();
        }
    }

    void fieldsStandInLine()
    {
        QVERIFY(ZanthicTheme::applySkin("light"_s));
        QSpinBox spin;
        spin.setStyleSheet(Custom::styleSheet(Custom::SheetSpinBox));
        QLineEdit edit;
        edit.setStyleSheet(QString(Custom::styleSheet(Custom::SheetLineEdit)).replace("*PaddingLeft*"_s, "0"_s));
        QVERIFY(spin.sizeHint().height() == 32 && edit.sizeHint().height() == 32);
        spin.resize(100, 32);
        spin.ensurePolished();
        QStyleOptionSpinBox option;
        option.initFrom(&spin);
        option.subControls = QStyle::SC_All;
        const auto place = [&](QStyle::SubControl part) {
            return spin.style()->subControlRect(QStyle::CC_SpinBox, &option, part, &spin);
        };
        // The inner field adds 2 px in front of its text, which so begins 8 px from the edge like that of a combo box.
        QCOMPARE(place(QStyle::SC_SpinBoxEditField), QRect(6, 5, 64, 22));
        // With a margin of 1 px at the edge the arrows stand 14 px from it, as the one of a combo box does.
        QCOMPARE(place(QStyle::SC_SpinBoxUp), QRect(73, 0, 27, 16));
        QCOMPARE(place(QStyle::SC_SpinBoxDown), QRect(73, 16, 27, 16));
    }

    void selectorsReadWell_data() { addRowsOf("cases/selectors.txt"_s, { "skin", "class", "selector", "parts" }); }
    void selectorsReadWell()
    {
        QVERIFY(ZanthicTheme::applySkin(cell("skin")));
        const QString name = cell("class").toLower().section('/', -1);
        const QString outer = cell("class").toLower().section('/', -2, -2);
        const auto base = Custom::getAttrMap(name, "default"_s, outer);
        const auto own = Custom::getAttrMap(name, cell("selector").toLower(), outer);
        QVERIFY(!own.isEmpty());
        // A selector that gives a new Normal but leaves out Hover would get the Hover of Default.
        for (const QString &key : own.keys()) {
            for (const auto &status : { ":hover"_s, ":pressed"_s, ":disabled"_s })
                QVERIFY2(!base.contains(key + status) || own.contains(key + status), qPrintable(key + status));
        }
        m_lstLooks.clear();
        m_bControl = name == "custompushbutton"_s || name == "customcombobox"_s;
        const auto host = hostOf(cell("selector"));
        for (Custom::ItemStatus status : { Custom::Normal, Custom::Hover, Custom::Pressed, Custom::Disabled }) {
            if (list("parts").isEmpty())
                checkBox(*host, status);
            for (const QString &part : list("parts"))
                checkIndicator(*host, status, part);
        }
        QCOMPARE(QSet<QByteArray>(m_lstLooks.begin(), m_lstLooks.end()).size(), m_lstLooks.size());
    }

    void statusImagesReadWell_data()
    {
        addRowsOf("cases/status-images.txt"_s, { "class", "key", "selectors", "width", "height", "pages", "looks" });
    }
    void statusImagesReadWell()
    {
        for (const QString &skin : ZanthicTheme::skins()) {
            QVERIFY(ZanthicTheme::applySkin(skin));
            for (const QString &selector : list("selectors")) {
                const auto host = hostOf(selector);
                QVERIFY(host->cHasParameter(Custom::ParamBackgroundImage) || cell("key") == "HandleImage"_s);
                QSet<QByteArray> looks;
                for (Custom::ItemStatus status : { Custom::Normal, Custom::Hover, Custom::Pressed, Custom::Disabled }) {
                    const QString path = host->cAttributeValue(cell("key"), status);
                    looks += bytes(path);
                    QCOMPARE(QImage(path).size(), QSize(int(number("width")), int(number("height"))));
                    for (const QString &page : list("pages")) {
                        const double mark = markContrast(QImage(path), skinColor(page));
                        QVERIFY2(status == Custom::Disabled || mark >= kIndicatorContrast, qPrintable(path));
                    }
                }
                QCOMPARE(looks.size(), int(number("looks")));
            }
        }
    }

    void whatTheCodeAsksForIsThere()
    {
        const QRegularExpression form("\"(DB_COLOR_\\w+|Custom_\\w+|:/Zanthic/\\S+\\.\\w+)\""_s);
        QStringList names;
        for (QDirIterator it(QStringLiteral(ZANTHIC_TEST_DATA "/../../src"), { "*.cpp"_s, "*.h"_s }, QDir::Files,
                 QDirIterator::Subdirectories);
             it.hasNext();) {
            for (auto match = form.globalMatch(QString::fromUtf8(bytes(it.next()))); match.hasNext();)
                names += match.next().captured(1);
        }
        QVERIFY(!names.isEmpty());
        for (const QString &skin : ZanthicTheme::skins()) {
            QVERIFY(ZanthicTheme::applySkin(skin));
            for (const QString &name : qAsConst(names)) {
                const bool isThere = name.startsWith(':') ? QFile::exists(name)
                                                          : Custom::getDataBaseColor(name).style() == Qt::SolidPattern;
                QVERIFY2(isThere, qPrintable(name));
            }
        }
    }

    void sheetColorsReadWell_data() { addRowsOf("cases/contrasts.txt"_s, { "front", "backs", "ratio" }); }
    void sheetColorsReadWell()
    {
        for (const QString &skin : ZanthicTheme::skins()) {
            QVERIFY(ZanthicTheme::applySkin(skin));
            for (const QString &back : list("backs"))
                requireContrast(skinColor(cell("front")), skinColor(back), number("ratio"));
        }
    }
};

ZANTHIC_TEST_MAIN(TestThemeFiles)
#include "tst_theme_files.moc"
