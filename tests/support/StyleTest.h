#pragma once

#include "style/Custom.h"

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <memory>

/// Base of every test: each test function starts with empty process-wide stores and ends without unexpected warnings
/// and without windows that it left behind.
class StyleTest : public QObject
{
    Q_OBJECT

public:
    /// Announces one warning whose text contains \p part; without it a warning fails the test.
    static void expectWarning(const QString &part);

    /// Writes \p text to a new scratch file and gives its path.
    QString scratchFile(const QByteArray &text, const QString &suffix = QStringLiteral(".xml"));
    /// Takes up a style document: \p classes stand below its root element.
    QString addDocument(const QByteArray &classes);
    /// Takes up a document whose colours are \p colors: the elements below one "Table" of a skin colour file.
    QString addColors(const QByteArray &colors);
    /// "<Selector Name='...'>...</Selector>" in a class of that name.
    static QByteArray classXml(const QByteArray &className, const QByteArray &selector, const QByteArray &attributes);
    /// The elements of attributes such as "FontSize=9 Icon=@red16x12", where @ stands for the path of a new picture.
    QByteArray attributesXml(const QString &attributes);
    /// A document that gives a class these attributes, written as for attributesXml().
    QString addStyle(const QByteArray &className, const QString &attributes, const QByteArray &selector = "Default");
    /// The path of a new picture in one colour.
    QString picture(const QColor &color, const QSize &size = QSize(16, 16));

    /// Adds a row for each line of a file in tests/data, whose cells stand between bars, without the blanks around
    /// them. Lines that begin with "# " are comments. Without names of columns the first cell names the row and the
    /// others are its one column "fields"; otherwise each is a text of its own, quotes keep its blanks, and the line
    /// names the row.
    static void addRowsOf(const QString &file, std::initializer_list<const char *> columns = {});
    /// The text of a column in the current row.
    static QString cell(const char *column);
    /// What a column holds between commas.
    static QStringList list(const char *column) { return cell(column).split(QLatin1Char(','), Qt::SkipEmptyParts); }
    /// The number at \p index of a column of numbers between commas; 0 where there is none.
    static double number(const char *column, int index = 0) { return list(column).value(index).toDouble(); }
    /// The status that a column names by its word; Normal when it is empty.
    static Custom::ItemStatus status(const char *column = "status")
    {
        return qMax(Custom::Normal, enumerator<Custom::ItemStatus>(cell(column)));
    }
    /// The numbers in a text, whatever stands between them.
    static QVector<double> numbersIn(const QString &text);
    /// Left, top, width and height; the null rectangle for an empty text.
    static QRect rectIn(const QString &text);
    /// -1 for a word that is no enumerator.
    template <typename Enum>
    static Enum enumerator(const QString &word)
    {
        return Enum(QMetaEnum::fromType<Enum>().keyToValue(word.toLatin1().constData()));
    }

private Q_SLOTS:
    void init();
    void cleanup();

private:
    std::unique_ptr<QTemporaryDir> m_pDir;
    int m_nFiles = 0;
};

/// main() of a test executable: an application with the bundled font.
#define ZANTHIC_TEST_MAIN(TestClass)                                                                                   \
    int main(int argc, char *argv[])                                                                                   \
    {                                                                                                                  \
        QApplication app(argc, argv);                                                                                  \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
