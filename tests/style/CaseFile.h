#pragma once

#include "style/Custom.h"

#include <QtCore/QFile>
#include <QtTest/QtTest>

/// Test cases as plain text, one a line. Columns stand between "|", without the blanks around them; a column in
/// quotes keeps its blanks. Lines that begin with "-- " say what follows.
namespace CaseFile {

/// Adds a row of texts for each line of tests/data/cases/NAME.txt.
inline void addRows(const char *name, std::initializer_list<const char *> columns)
{
    for (const char *column : columns)
        QTest::addColumn<QString>(column);
    QFile file(QStringLiteral(ZANTHIC_TEST_DATA "/cases/%1.txt").arg(QLatin1String(name)));
    QVERIFY2(file.open(QIODevice::ReadOnly), name);
    int number = 0;
    int rows = 0;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        ++number;
        if (line.isEmpty() || line.startsWith(QLatin1String("-- ")))
            continue;
        const QStringList cells = line.split(QLatin1Char('|'));
        QVERIFY2(cells.size() == int(columns.size()), qPrintable(line));
        QTestData &row = QTest::addRow("%d: %s", number, qPrintable(line));
        ++rows;
        for (const QString &cell : cells) {
            const QString text = cell.trimmed();
            const bool quoted = text.size() > 1 && text.startsWith(QLatin1Char('"')) && text.endsWith(QLatin1Char('"'));
            row << (quoted ? text.mid(1, text.size() - 2) : text);
        }
    }
    QVERIFY2(rows > 0, name);
}

/// The text of a column in the current row.
inline QString cell(const char *column)
{
    return *static_cast<QString *>(QTest::qData(column, qMetaTypeId<QString>()));
}

/// The words of a column between commas.
inline QStringList list(const char *column)
{
    return cell(column).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

/// The number at \p index of a column of numbers between commas; 0 where there is none.
inline double number(const char *column, int index = 0)
{
    return list(column).value(index).toDouble();
}

/// The status that a column names by its word; Normal when it is empty.
inline Custom::ItemStatus status(const char *column = "status")
{
    for (const Custom::ItemStatus status : { Custom::Hover, Custom::Pressed, Custom::Disabled }) {
        if (Custom::itemStatus2String(status) == cell(column))
            return status;
    }
    return Custom::Normal;
}

} // namespace CaseFile
