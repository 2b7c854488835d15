#pragma once

#include "support/Literal.h"
#include "support/StyleTest.h"

#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

#include <functional>

/// Base of the tests under a window system: its own pointer and keys, and where it has put windows.
class DesktopTest : public StyleTest
{
public:
    /// Runs xdotool. When it is done, all that it made the display send has been handled.
    static QString tool(const QString &words)
    {
        QProcess process;
        QEventLoop loop;
        connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop, &QEventLoop::quit);
        process.start("xdotool"_s, words.split(' ', Qt::SkipEmptyParts));
        loop.exec();
        QCursor::pos(); // answered behind everything before it
        QCoreApplication::processEvents();
        return QString::fromLatin1(process.readAllStandardOutput());
    }
    static QString to(const QPoint &at) { return "mousemove %1 %2 "_s.arg(at.x()).arg(at.y()); }
    static void move(const QPoint &at) { tool(to(at)); }
    static void press(const QPoint &at) { tool(to(at) + QLatin1String("mousedown 1")); }
    static void release() { tool("mouseup 1"_s); }
    static void click(const QPoint &at) { tool(to(at) + QLatin1String("click 1")); }
    static void doubleClick(const QPoint &at)
    {
        QApplication::setDoubleClickInterval(5000); // also on a busy machine
        tool(to(at) + QLatin1String("click --repeat 2 --delay 20 1"));
    }
    static void keys(const char *names) { tool(QLatin1String("key ") + QLatin1String(names)); }
    static void drag(const QPoint &from, const QPoint &way)
    {
        press(from);
        move(from + way / 2);
        move(from + way);
        release();
    }

    static QPoint middle(const QWidget *widget) { return widget->mapToGlobal(widget->rect().center()); }
    static QWidget *button(const QWidget *window, const char *name)
    {
        return window->findChild<QWidget *>(QLatin1String(name));
    }
    /// Where the display and Qt agree that \p window is; null while they don't.
    static QRect placeOf(const QWidget &window)
    {
        const auto n = numbersIn(tool("getwindowgeometry %1"_s.arg(window.winId())));
        const QRect place = n.size() < 6 ? QRect() : QRectF(n[1], n[2], n[4], n[5]).toRect();
        const QRect known(window.mapToGlobal(QPoint(0, 0)), window.size());
        return place == window.geometry() && place == known ? place : QRect();
    }
    static Qt::CursorShape cursorShape()
    {
        return QGuiApplication::overrideCursor() ? QGuiApplication::overrideCursor()->shape() : Qt::ArrowCursor;
    }

    /// Runs \p drive as soon as \p ready is true, inside the loop that \p blocking opens. What is still open after
    /// some seconds is closed, and the test has failed.
    static void during(
        const std::function<void()> &blocking, const std::function<bool()> &ready, const std::function<void()> &drive)
    {
        QTimer poll;
        QTimer limit;
        bool isStuck = false;
        poll.callOnTimeout([&] {
            if (!ready())
                return;
            poll.stop();
            drive();
        });
        limit.callOnTimeout([&] {
            isStuck = true;
            poll.stop();
            QApplication::closeAllWindows();
        });
        poll.start(10);
        limit.start(8000);
        blocking();
        QVERIFY2(!isStuck && !poll.isActive(), "it stayed open, or never opened");
    }
};

/// A window in the look of the theme that counts the presses that reach it.
class Shell : public CustomMainWindow
{
public:
    explicit Shell(const QRect &place = QRect(200, 150, 400, 300), QWidget *parent = nullptr)
        : CustomMainWindow((ZanthicTheme::applySkin("light"_s), parent))
    {
        setGeometry(place);
    }
    static constexpr int kPatienceMs = 15000; // with the window manager of a busy machine

    /// Shows it; true when it is where it was put and has the keys.
    bool settles()
    {
        const QRect place = geometry();
        show();
        return QTest::qWaitForWindowActive(this, kPatienceMs)
            && QTest::qWaitFor([&] { return DesktopTest::placeOf(*this) == place; }, kPatienceMs);
    }
    QPoint at(int x, int y) const { return mapToGlobal(QPoint(x, y)); }

    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        ++presses;
        CustomMainWindow::mousePressEvent(event);
    }
};
