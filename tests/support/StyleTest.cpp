#include "support/StyleTest.h"

#include "style/CustomPrivate_p.h"
#include "style/CustomStyleSheetData_p.h"

namespace {

// What the offscreen platform says of masks of windows and of sizes that a layout asks for.
const auto kPlatformLimit = QLatin1String("This plugin does not support ");

QtMessageHandler g_pPreviousHandler = nullptr;
QStringList g_lstExpected;
QStringList g_lstUnexpected;

void recordMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(kPlatformLimit))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        for (int i = 0; i < g_lstExpected.size(); ++i) {
            if (message.contains(g_lstExpected.at(i))) {
                g_lstExpected.removeAt(i);
                return;
            }
        }
        g_lstUnexpected.append(message);
    }
    g_pPreviousHandler(type, context, message);
}

} // namespace

void StyleTest::expectWarning(const QString &part)
{
    g_lstExpected.append(part);
}

QString StyleTest::scratchFile(const QByteArray &text, const QString &suffix)
{
    const QString path = m_pDir->filePath(QStringLiteral("scratch%1%2").arg(++m_nFiles).arg(suffix));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("can't write a scratch file");
    return path;
}

QString StyleTest::addDocument(const QByteArray &classes)
{
    const QString path = scratchFile("<Style>" + classes + "</Style>");
    Custom::addXmlPath(path);
    return path;
}

QString StyleTest::addColors(const QByteArray &colors)
{
    const QString path = scratchFile("<Colors><Table>" + colors + "</Table></Colors>");
    return addDocument(
        "<Class Name='Colors'><DataBase:Color><File>" + path.toUtf8() + "</File></DataBase:Color></Class>");
}

QByteArray StyleTest::classXml(const QByteArray &className, const QByteArray &selector, const QByteArray &attributes)
{
    return "<Class Name='" + className + "'><Selector Name='" + selector + "'>" + attributes + "</Selector></Class>";
}

QByteArray StyleTest::attributesXml(const QString &attributes)
{
    static const QRegularExpression blank(QStringLiteral("\\s+(?=[\\w:-]+=)"));
    static const QRegularExpression image(QStringLiteral("^@([a-z]+)(\\d+)x(\\d+)$"));
    QString result;
    for (const QString &attribute : attributes.split(blank, Qt::SkipEmptyParts)) {
        const QString name = attribute.section(QLatin1Char('='), 0, 0);
        QString value = attribute.section(QLatin1Char('='), 1);
        const auto match = image.match(value);
        if (match.hasMatch())
            value = picture(match.captured(1), { match.captured(2).toInt(), match.captured(3).toInt() });
        result += QStringLiteral("<%1>%2</%1>").arg(name, value);
    }
    return result.toUtf8();
}

QString StyleTest::addStyle(const QByteArray &className, const QString &attributes, const QByteArray &selector)
{
    return addDocument(classXml(className, selector, attributesXml(attributes)));
}

QString StyleTest::picture(const QColor &color, const QSize &size)
{
    const QString path = scratchFile("", QStringLiteral(".png"));
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    if (!image.save(path))
        qFatal("can't write a picture");
    return path;
}

void StyleTest::addRowsOf(const QString &file, std::initializer_list<const char *> columns)
{
    for (const char *column : columns)
        QTest::addColumn<QString>(column);
    if (columns.size() == 0)
        QTest::addColumn<QStringList>("fields");
    QFile data(QStringLiteral(ZANTHIC_TEST_DATA "/") + file);
    QVERIFY2(data.open(QIODevice::ReadOnly), qPrintable(file));
    static const QRegularExpression quoted(QStringLiteral("^\"(.*)\"$"));
    for (const QString &line : QString::fromUtf8(data.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (line.startsWith(QLatin1String("# ")))
            continue;
        QStringList fields = line.split(QLatin1Char('|'));
        for (QString &field : fields)
            field = field.trimmed();
        if (columns.size() == 0) {
            const QString name = fields.takeFirst();
            QTest::newRow(qPrintable(name)) << fields;
            continue;
        }
        QVERIFY2(fields.size() == int(columns.size()), qPrintable(line));
        QTestData &row = QTest::newRow(qPrintable(line));
        for (QString &field : fields)
            row << field.replace(quoted, QStringLiteral("\\1"));
    }
}

QString StyleTest::cell(const char *column)
{
    return *static_cast<QString *>(QTest::qData(column, qMetaTypeId<QString>()));
}

QVector<double> StyleTest::numbersIn(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("-?\\d+(\\.\\d+)?"));
    QVector<double> result;
    for (auto it = form.globalMatch(text); it.hasNext();)
        result += it.next().captured().toDouble();
    return result;
}

QRect StyleTest::rectIn(const QString &text)
{
    const QVector<double> n = numbersIn(text);
    return n.isEmpty() ? QRect() : QRectF(n[0], n[1], n[2], n[3]).toRect();
}

void StyleTest::init()
{
    m_pDir = std::make_unique<QTemporaryDir>();
    m_nFiles = 0;
    CustomStyleSheetData::reset();
    CustomPrivate::setIsFontFamilyChange(false);
    CustomPrivate::setShortcutWidget(nullptr);
    CustomPrivate::m_AllModalWidget.clear();
    Custom::clearHotKey();
    QCursor::setPos(0, 0);
    g_lstExpected.clear();
    g_lstUnexpected.clear();
    g_pPreviousHandler = qInstallMessageHandler(recordMessage);
}

void StyleTest::cleanup()
{
    qInstallMessageHandler(g_pPreviousHandler);
    m_pDir.reset();
    QVERIFY2(g_lstUnexpected.isEmpty(), qPrintable(g_lstUnexpected.join(QLatin1Char('\n'))));
    QVERIFY2(g_lstExpected.isEmpty(),
        qPrintable(QStringLiteral("no such warning: ") + g_lstExpected.join(QLatin1Char('\n'))));
    const QWidgetList left = QApplication::topLevelWidgets();
    QVERIFY2(left.isEmpty(), qPrintable(QStringLiteral("%1 windows left behind").arg(left.size())));
}
