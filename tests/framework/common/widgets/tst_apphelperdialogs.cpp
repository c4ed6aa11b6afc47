#include "framework/common/widgets/apphelperdialogs.h"

#include "files.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr auto SleepArgument = "--sleep";

/// What the operator saw, and the button that was pressed, or Escape for an empty one.
struct Answer
{
    QString press;
    QString text;
    QStringList buttons;
    bool onTop = false;

    void give()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box) {
            QTimer::singleShot(0, qApp, [this] { give(); });
            return;
        }
        text = box->text();
        onTop = box->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        QPushButton *chosen = nullptr;
        const auto all = box->findChildren<QPushButton *>();
        for (QPushButton *button : all) {
            buttons << button->text() + (button->isDefault() ? "*"_L1 : ""_L1);
            chosen = button->text() == press ? button : chosen;
        }
        buttons.sort();
        if (chosen)
            QTest::mouseClick(chosen, Qt::LeftButton);
        else
            QTest::keyClick(box, Qt::Key_Escape);
    }
};

} // namespace

class TestAppHelperDialogs : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void catchUrl(const QUrl &url) { m_opened = url; }

private Q_SLOTS:
    void answersAreTheButtonPressed()
    {
        const auto check = [](bool withCancel, const QStringList &captions, const QString &press, int result,
                              const QString &buttons) {
            Answer answer;
            answer.press = press;
            QTimer::singleShot(0, qApp, [&] { answer.give(); });
            const auto icon = QMessageBox::Question;
            QCOMPARE(withCancel ? AppHelper::confirmDialogWithCancel(u"T"_s, u"Q?"_s, icon, captions)
                                : int(AppHelper::confirmDialog(u"T"_s, u"Q?"_s, icon, captions)),
                     result);
            QCOMPARE(answer.buttons.join(' '_L1), buttons);
            QCOMPARE(answer.text, u"Q?"_s);
            QVERIFY(answer.onTop);
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
        Answer answer;
        answer.press = u"OK"_s;
        QTimer::singleShot(0, qApp, [&] { answer.give(); });
        QVERIFY(AppHelper::checkAndCloseIfAppsRunning({u"spinbar-still-here"_s}, 0));
        QCOMPARE(answer.text, u"Cannot start because this app is already running:\nspinbar-still-here.exe"_s);
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
