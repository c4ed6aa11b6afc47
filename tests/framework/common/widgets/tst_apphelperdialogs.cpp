#include "framework/common/widgets/apphelperdialogs.h"

#include "buttons.h"
#include "files.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr auto SleepArgument = "--sleep";

/// What the operator saw.
struct Box
{
    QString text;
    QStringList buttons;
    bool onTop = false;
};

/// Presses that button of the next box, or Escape if that is empty.
std::shared_ptr<Box> press(const QString &button)
{
    auto seen = std::make_shared<Box>();
    onNext<QMessageBox>(qApp, [seen, button](QMessageBox &box) {
        seen->text = box.text();
        seen->onTop = box.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        for (const auto *other : box.findChildren<QPushButton *>())
            seen->buttons << other->text() + (other->isDefault() ? "*"_L1 : ""_L1);
        seen->buttons.sort();
        if (button.isEmpty())
            QTest::keyClick(&box, Qt::Key_Escape);
        else
            QTest::mouseClick(findButton(&box, button), Qt::LeftButton);
    });
    return seen;
}

} // namespace

class TestAppHelperDialogs : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void catchUrl(const QUrl &url) { m_opened = url; }

private Q_SLOTS:
    void answersAreTheButtonPressed()
    {
        const auto check = [](bool withCancel, const QStringList &captions, const QString &pressed,
                              int result, const QString &buttons) {
            const auto seen = press(pressed);
            const auto icon = QMessageBox::Question;
            QCOMPARE(withCancel ? AppHelper::confirmDialogWithCancel(u"T"_s, u"Q?"_s, icon, captions)
                                : int(AppHelper::confirmDialog(u"T"_s, u"Q?"_s, icon, captions)),
                     result);
            QCOMPARE(seen->buttons.join(' '_L1), buttons);
            QVERIFY(seen->text == "Q?"_L1 && seen->onTop);
        };
        check(false, {}, u"Yes"_s, 1, u"No Yes*"_s);
        check(false, {}, u"No"_s, 0, u"No Yes*"_s);
        check(false, {}, {}, 0, u"No Yes*"_s);
        check(true, {}, u"Ok"_s, 1, u"Cancel No Ok*"_s);
        check(true, {}, u"No"_s, 0, u"Cancel No Ok*"_s);
        check(true, {u"A"_s, u"B"_s, u"C"_s}, u"C"_s, -1, u"A* B C"_s);
        check(true, {u"A"_s, u"B"_s}, {}, -1, u"A* B Cancel"_s);
    }

    void runningPredecessorStopsTheStart()
    {
        const QTemporaryDir folder;
        const QString program = folder.filePath(u"spinbar-still-here"_s);
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        QProcess predecessor;
        predecessor.start(program, {QLatin1StringView(SleepArgument)});
        QVERIFY(predecessor.waitForStarted());
        const auto seen = press(u"OK"_s);
        QVERIFY(AppHelper::checkAndCloseIfAppsRunning({u"spinbar-still-here"_s}, 0));
        QCOMPARE(seen->text, u"Cannot start because this app is already running:\nspinbar-still-here.exe"_s);
        predecessor.kill();
        QVERIFY(predecessor.waitForFinished());
        QVERIFY(!AppHelper::checkAndCloseIfAppsRunning({u"spinbar-still-here"_s}, 0));
    }

    void folderIsOpenedWithoutAFileManager()
    {
        const QTemporaryDir folder;
        const QString inside = folder.filePath(u"sub dir"_s);
        QVERIFY(QDir().mkpath(inside) && writeFile(inside + "/a b.txt"_L1));
        QDesktopServices::setUrlHandler(u"file"_s, this, "catchUrl");
        for (const QString &path : {inside, inside + "/a b.txt"_L1}) {
            m_opened.clear();
            AppHelper::showInFolder(path);
            QTRY_COMPARE(m_opened.toLocalFile(), inside);
        }
        QDesktopServices::unsetUrlHandler(u"file"_s);
    }

private:
    QUrl m_opened;
};

int main(int argc, char *argv[])
{
    // Nothing answers on a bus that is not there.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    const QApplication app(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], SleepArgument) == 0)
        return QApplication::exec();
    TestAppHelperDialogs test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_apphelperdialogs.moc"
