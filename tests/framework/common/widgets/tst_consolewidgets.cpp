#include "framework/common/globalconsole.h"
#include "framework/common/widgets/globalconsolestatuswidget.h"
#include "framework/common/widgets/globalconsoletotalwidget.h"
#include "framework/common/widgets/globalconsolewidget.h"
#include "framework/common/widgets/stylehelper.h"

#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QDateTime Noon(QDate(2026, 11, 23), QTime(12, 0));

void write(const QString &text)
{
    GlobalConsole::writeLine(text, Noon);
}

/// "name=value" of each row, from the top.
QStringList rows(const QWidget &widget)
{
    QList<QLabel *> labels = widget.findChildren<QLabel *>();
    std::sort(labels.begin(), labels.end(), [](const QLabel *a, const QLabel *b) {
        return std::pair(a->y(), a->x()) < std::pair(b->y(), b->x());
    });
    QStringList all;
    for (qsizetype i = 0; i + 1 < labels.size(); i += 2)
        all += labels[i]->text() + '=' + labels[i + 1]->text();
    return all;
}

} // namespace

class TestConsoleWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(u"spinbar.console.debug=false"_s); }
    void init() { GlobalConsole::freeData(); }

    void newestEntryStandsAtTheTop()
    {
        write(u"one"_s);
        write(u"two"_s);
        GlobalConsoleWidget widget;
        const QString before = u"12:00:00.000 two\n\n12:00:00.000 one\n"_s;
        QCOMPARE(widget.toPlainText(), before);
        QCOMPARE(widget.lineWrapMode(), QTextEdit::NoWrap);
        write(u"three"_s);
        write(u"<span style='color: red'>f&lt;ur</span>"_s);
        QCOMPARE(widget.toPlainText(), before);
        QCoreApplication::processEvents();
        QCOMPARE(widget.toPlainText(), u"12:00:00.000 f<ur\n12:00:00.000 three\n"_s + before);
    }

    // What one insertion shows must not depend on whether it goes the short way, nor on paragraphs.
    void manyEntriesReadAsOneText()
    {
        GlobalConsoleWidget widget;
        QString html;
        for (int i = 0; i < 250; ++i) {
            const QString line =
                i % 7 == 0 ? u"<b>%1</b> &amp; x"_s.arg(i) : u" %1 \t  white   space"_s.arg(i);
            write(line);
            html.prepend(u"12:00:00.000 "_s + line + "<br>"_L1);
            if (i % 60 == 0)
                QCoreApplication::processEvents();
        }
        QTextEdit reference;
        reference.setHtml(html);
        QTRY_COMPARE(widget.toPlainText(), reference.toPlainText());
    }

    void hundredThousandEntriesStayUsable()
    {
        constexpr int Entries = 100'000;
        // Many times what it takes; a text that is set anew for each entry takes minutes.
        constexpr int LimitMs = 30'000;
        QElapsedTimer timer;
        timer.start();
        GlobalConsoleWidget widget;
        widget.show();
        for (int i = 0; i < Entries; ++i)
            write(u"entry %1"_s.arg(i));
        for (int i = 0; i < 50; ++i) {
            QCoreApplication::processEvents();
            write(u"<span>late</span>"_s);
        }
        QTRY_COMPARE(widget.toPlainText().count("late"_L1), 50);
        QVERIFY2(timer.elapsed() < LimitMs, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(widget.toPlainText().count("entry"_L1), Entries);
    }

    void coloursAreReadableInBothThemes()
    {
        GlobalConsole::setStatus(u"a"_s, u"b"_s);
        write(u"<span style='color: #159'>x</span>"_s);
        const auto check = [](const QString &theme, const QString &entry, const QString &name) {
            StyleHelper::Instance()->addThemeFile(u":/themes/%1.css"_s.arg(theme), theme);
            StyleHelper::Instance()->selectTheme(theme);
            const GlobalConsoleWidget entries;
            const GlobalConsoleStatusWidget statuses(GlobalConsoleStatusWidget::Status, nullptr);
            QTextCursor cursor(entries.document());
            cursor.setPosition(int(entries.toPlainText().indexOf(u'x')) + 1);
            QCOMPARE(cursor.charFormat().foreground().color().name(), entry);
            QCOMPARE(statuses.findChild<QLabel *>()->styleSheet(), name);
        };
        check(u"light"_s, u"#115599"_s, u"color: #036"_s);
        check(u"dark"_s, u"#66aaee"_s, u"color: #99ccff"_s);
    }

    void entriesLoadNothing()
    {
        const QTemporaryDir folder;
        const QUrl picture = QUrl::fromLocalFile(folder.filePath(u"a.png"_s));
        QImage image(10, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(picture.toLocalFile()));
        GlobalConsoleWidget widget;
        widget.show();
        write(u"<img src='%1'>"_s.arg(picture.toString()));
        QCoreApplication::processEvents();
        const QVariant loaded = widget.document()->resource(QTextDocument::ImageResource, picture);
        QVERIFY(loaded.value<QImage>().isNull() && loaded.toByteArray().isEmpty());
    }

    void figuresFollowTheConsole()
    {
        GlobalConsole::countAverage(u"b"_s, 1.005, 5);
        GlobalConsoleStatusWidget averages(GlobalConsoleStatusWidget::Averages, nullptr);
        GlobalConsoleStatusWidget statuses(GlobalConsoleStatusWidget::Status, nullptr);
        averages.show();
        statuses.show();
        QCOMPARE(rows(averages), QStringList(u"b=1.00"_s));
        averages.setPrecision(1);
        GlobalConsole::countAverage(u"b"_s, 2, 5);
        GlobalConsole::countAverage(u"a"_s, -3, 5);
        GlobalConsole::setStatus(u"port"_s, u"<b>COM7"_s);
        GlobalConsole::setStatus(u"link"_s, u"up"_s);
        QTRY_COMPARE(rows(averages), QStringList({u"a=-3.0"_s, u"b=2.0"_s}));
        QTRY_COMPARE(rows(statuses), QStringList({u"link=up"_s, u"port=<b>COM7"_s}));
        GlobalConsole::clearStatus(u"link"_s);
        QTRY_COMPARE(rows(statuses), QStringList(u"port=<b>COM7"_s));

        GlobalConsoleTotalWidget total;
        const QSignalSpy closing(&total, &GlobalConsoleTotalWidget::closing);
        QCOMPARE(total.findChildren<GlobalConsoleStatusWidget *>().size(), 2);
        GlobalConsoleWidget entries;
        const QSignalSpy entriesClosing(&entries, &GlobalConsoleWidget::closing);
        QVERIFY(total.close() && entries.close());
        QCOMPARE(closing.size() + entriesClosing.size(), 2);
    }
};

QTEST_MAIN(TestConsoleWidgets)
#include "tst_consolewidgets.moc"
