#include "style/CustomPrivate_p.h"
#include "style/CustomStyleSheetData_p.h"

#include <QtCore/QFile>

namespace {

struct SheetTag
{
    Custom::StyleSheetType type;
    QLatin1String tag;
};

const SheetTag s_lstSheetTags[] = {
    { Custom::SheetGroupBox, QLatin1String("CustomGroupBox") },
    { Custom::SheetHeaderView, QLatin1String("CustomHeaderView") },
    { Custom::SheetLineEdit, QLatin1String("CustomLineEdit") },
    { Custom::SheetListView, QLatin1String("CustomListView") },
    { Custom::SheetScrollBar, QLatin1String("CustomScrollBar") },
    { Custom::SheetSlider, QLatin1String("CustomSlider") },
    { Custom::SheetSpinBox, QLatin1String("CustomSpinBox") },
    { Custom::SheetDoubleSpinBox, QLatin1String("CustomDoubleSpinBox") },
    { Custom::SheetTabBar, QLatin1String("CustomTabBar") },
    { Custom::SheetTableView, QLatin1String("CustomTableView") },
    { Custom::SheetTreeWidget, QLatin1String("CustomTreeWidget") },
};

// The finished sheets by their type.
QMap<int, QString> &g_StyleSheets()
{
    static QMap<int, QString> s_Sheets;
    return s_Sheets;
}

} // namespace

void CustomStyleSheetData::clearStyleSheets()
{
    g_StyleSheets().clear();
}

void Custom::initFontFamily()
{
    CustomStyleSheetData *data = CustomStyleSheetData::instance();
    if (!data)
        return;
    const QMap<QString, QString> attrs = getAttrMap(QStringLiteral("global"), QStringLiteral("default"), QString());
    for (const Language language : { Zh_cn, En_us }) {
        const auto family = attrs.constFind(QLatin1String("fontfamily:") + language2String(language).toLower());
        if (family != attrs.cend())
            data->fontFamilies[language] = *family;
    }
    // The first family in force again, whatever the language: setLanguage() has to follow.
    if (!data->fontFamilies.isEmpty())
        data->globalFontFamily = data->fontFamilies.first();
}

QString Custom::globalFontFamily()
{
    const CustomStyleSheetData *data = CustomStyleSheetData::instance();
    return data ? data->globalFontFamily : QString();
}

QString Custom::globalFontFamily(Language language)
{
    initXmlInfo(QLatin1String(c_szBaseXmlPath));
    CustomStyleSheetData *data = CustomStyleSheetData::instance();
    return data ? data->fontFamilies[language] : QString();
}

Custom::Language Custom::language()
{
    const CustomStyleSheetData *data = CustomStyleSheetData::instance();
    return data ? data->language : En_us;
}

void Custom::setLanguage(Language language)
{
    initXmlInfo(QLatin1String(c_szBaseXmlPath));
    CustomStyleSheetData *data = CustomStyleSheetData::instance();
    if (!data)
        return;
    data->language = language;
    const auto family = data->fontFamilies.constFind(language);
    if (family == data->fontFamilies.cend())
        return;
    CustomPrivate::setIsFontFamilyChange(*family != data->globalFontFamily);
    data->globalFontFamily = *family;
}

void Custom::setGlobalFontFamily(Language language, const QString &family)
{
    initXmlInfo(QLatin1String(c_szBaseXmlPath));
    if (CustomStyleSheetData *data = CustomStyleSheetData::instance())
        data->fontFamilies[language] = family;
}

void Custom::initStyleSheets()
{
    if (!g_StyleSheets().isEmpty())
        return;
    initXmlInfo(QLatin1String(c_szBaseXmlPath));
    CustomStyleSheetData *data = CustomStyleSheetData::instance();
    if (!data)
        return;
    QMap<int, QString> files;
    for (const SheetTag &sheet : s_lstSheetTags)
        files[sheet.type] = data->qssFiles[sheet.tag];
    const QString chinese = data->fontFamilies.value(Zh_cn);
    const QString english = data->fontFamilies.value(En_us);
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
        QString sheet = readFileContent(it.value());
        sheet.replace(QLatin1String("##ZhcnFontFamily##"), chinese);
        sheet.replace(QLatin1String("##EnusFontFamily##"), english);
        g_StyleSheets()[it.key()] = sheet;
    }
}

const QString &Custom::styleSheet(StyleSheetType type)
{
    initStyleSheets();
    return g_StyleSheets()[type];
}
