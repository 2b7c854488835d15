#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/Custom.h>

/// Everything that the style documents say, for the whole process.
class ZANTHIC_TEST_EXPORT CustomStyleSheetData
{
public:
    using AttributeTable = QMap<QString, QString>; ///< selector + "##" + attribute key to value
    using ClassTable = QMap<QString, AttributeTable>; ///< lower-case class name to its attributes

    QString globalFontFamily; ///< the family of controls without a font of their own
    Custom::Language language = Custom::En_us;
    QStringList xmlPaths; ///< every document taken up, readable or not, in order
    QMap<int, QString> fontFamilies; ///< Custom::Language to font family
    ClassTable classes;
    QMap<QString, ClassTable> childClasses; ///< lower-case parent class name to the classes nested in it
    QMap<QString, QString> equalSelectors; ///< class + "##" + selector to the selector that is read instead
    QMap<QString, QString> qssFiles; ///< tag as written to the file of a style sheet template
    QMap<QString, QString> colors; ///< "DB_COLOR_" + upper-case name to colour text

    static CustomStyleSheetData *instance(); ///< null until Custom::initStyleSheetDataPointer()

    /// Counts up whenever a document, a colour file or a skin comes in. What was derived from an earlier revision
    /// is worthless.
    static quint64 revision();
    /// Starts a new revision: drops everything that was derived from the documents, finished style sheets excepted.
    static void invalidateDerived();
    static void clearStyleSheets();
    /// Forgets everything, as if the process had just started. For tests.
    static void reset();
};

namespace Custom {

constexpr char c_szBaseXmlPath[] = ":/Zanthic/QSS/CustomStyleSheet.xml"; ///< the base document
constexpr char c_szDBColorSymbol[] = "DB_COLOR_"; ///< in front of the name of a skin colour

} // namespace Custom
