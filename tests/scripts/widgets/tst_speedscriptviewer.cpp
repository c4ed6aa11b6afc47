#include "framework/settings/widgets/propertylistcontrol.h"
#include "scripts/speedscript.h"
#include "scripts/widgets/speedscriptviewer.h"

#include "buttons.h"

#include <QDialog>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

/// Edits scripts of 10 s, unless told otherwise, with the mouse and reads what the file then holds.
class TestSpeedScriptViewer : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_script = std::make_unique<SpeedScript>(m_folder->filePath(u"script.xml"_s));
    }

    void cleanup() { m_viewer.reset(); }

    void newScriptGetsAThirdPoint()
    {
        show({});
        mouse(QEvent::MouseButtonPress, at(5, 0));
        QCOMPARE(m_viewer->cursor().shape(), Qt::ClosedHandCursor);
        mouse(QEvent::MouseMove, at(5, 15));
        QVERIFY(stored().isEmpty()); // written at the release only
        mouse(QEvent::MouseButtonRelease, at(5, 15));
        QCOMPARE(m_viewer->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(stored(), (ScriptPoints{{0, 0}, {5, 15}, {10, 0}}));
    }

    void draggedMarkerIsRounded()
    {
        const auto check = [this](bool shift, QPointF to, ScriptPoint expected) {
            show({{5, 15}});
            mouse(QEvent::MouseButtonPress, at(5, 15) + QPoint(3, -2));
            mouse(QEvent::MouseMove, at(2, 2));
            const QPoint end = at(to.x(), to.y());
            mouse(QEvent::MouseMove, end, shift ? Qt::ShiftModifier : Qt::NoModifier);
            mouse(QEvent::MouseButtonRelease, end);
            QCOMPARE(stored(), ScriptPoints{expected});
        };
        check(false, {6.23, 20.31}, {6, 20});
        check(true, {6.23, 20.26}, {6.2, 20.3});
        check(false, {12, 35}, {10, 30}); // beyond the corner
        check(true, {-1, -2}, {0, 0});

        // Dropped without moving it stays as it is.
        show({{0, 0}, {10, 30}});
        drag(at(3.3, 9.9), at(3.3, 9.9), false);
        QCOMPARE(stored().size(), 3);
        const double time = stored().at(1).timeSeconds;
        QVERIFY(time != std::round(time));
        QVERIFY(std::abs(time - 3.3) <= 10.0 / m_viewer->plotRectangle().width());
    }

    void longAndDamagedScriptsCanBeEdited()
    {
        show({{-1e300, 5}, {2, 10}, {3, 1e300}, {1e300, -1e300}});
        drag(at(2, 10), at(1, 12));
        QCOMPARE(stored().size(), 4);
        QCOMPARE(stored().at(1), (ScriptPoint{1, 12}));

        m_script->setDurationSeconds(10000);
        show({{100, 15}});
        drag(at(1, 15), at(10, 15)); // a hundred times as far
        QCOMPARE(stored(), (ScriptPoints{{1000, 15}}));
    }

    void markerMayPassAnotherAndReplacesItAtItsTime()
    {
        show({{2, 10}, {8, 20}});
        mouse(QEvent::MouseButtonPress, at(2, 10));
        mouse(QEvent::MouseMove, at(9, 5));
        m_viewer->grab(); // the drag outlives a repaint
        mouse(QEvent::MouseMove, at(9, 6));
        mouse(QEvent::MouseButtonRelease, at(9, 6));
        QCOMPARE(stored(), (ScriptPoints{{8, 20}, {9, 6}}));

        // Of equal times the later in the list stays.
        show({{2, 10}, {8, 20}});
        drag(at(2, 10), at(8, 6));
        QCOMPARE(stored(), (ScriptPoints{{8, 20}}));
        show({{2, 10}, {8, 20}});
        drag(at(8, 20), at(2, 6));
        QCOMPARE(stored(), (ScriptPoints{{2, 6}}));
    }

    void altRemovesUntilNoneIsLeft()
    {
        show({{2, 10}, {8, 20}});
        mouse(QEvent::MouseButtonPress, at(8, 20), Qt::AltModifier);
        mouse(QEvent::MouseButtonRelease, at(8, 20), Qt::AltModifier);
        QCOMPARE(stored(), (ScriptPoints{{2, 10}}));
        m_viewer->grab();
        mouse(QEvent::MouseButtonPress, at(2, 10), Qt::AltModifier);
        QVERIFY(m_script->getPoints().isEmpty());
        m_viewer->grab();
        drag(at(5, 0), at(5, 0), false); // the level line is back
        QCOMPARE(stored().size(), 3);
    }

    void otherPressesDoNothing()
    {
        const ScriptPoints points{{2, 10}, {8, 10}};
        show(points);
        drag(at(5, 20), at(5, 29));    // beside the line
        drag(at(-0.5, 10), at(5, 29)); // outside the plot
        show(points, false);
        drag(at(8, 10), at(5, 29)); // a marker that is only shown
        drag(at(5, 10), at(5, 29));
        QVERIFY(stored().isEmpty());
        QCOMPARE(m_script->pointList(), points);
    }

    void dragEndsWithItsScript()
    {
        show({{2, 10}});
        mouse(QEvent::MouseButtonPress, at(2, 10));
        SpeedScript other(m_folder->filePath(u"other.xml"_s));
        other.setPointList({{5, 5}});
        m_viewer->setScript(&other);
        mouse(QEvent::MouseMove, at(3, 3));
        mouse(QEvent::MouseButtonRelease, at(3, 3));
        QCOMPARE(other.pointList(), (ScriptPoints{{5, 5}}));
        QVERIFY(stored().isEmpty());
    }

    void plotKeepsBelowTheFormAndTheButtonInItsCorner()
    {
        show({});
        auto *form = m_viewer->findChild<PropertyListControl *>();
        const auto isBelow = [&] {
            m_viewer->grab();
            return m_viewer->plotRectangle().top() == 8 + form->sizeHint().height() + 32;
        };
        QVERIFY(isBelow());
        const int top = m_viewer->plotRectangle().top();
        m_script->setInfinite(false); // brings the row of the loops
        QVERIFY(QTest::qWaitFor([&] { return isBelow() && m_viewer->plotRectangle().top() > top; }));
        m_viewer->setScript(nullptr);
        m_viewer->grab();
        QCOMPARE(m_viewer->plotRectangle().top(), 20);

        m_viewer->resize(700, 300);
        auto *button = m_viewer->findChild<QPushButton *>({}, Qt::FindDirectChildrenOnly);
        QCOMPARE(button->geometry(), QRect(700 - 32, 8, 24, 24));
        QString text;
        onNext<QDialog>(this, [&text](QDialog &dialog) {
            text = dialog.findChild<QLabel *>()->text();
            dialog.reject();
        });
        button->click();
        QVERIFY(text.contains(u"'ALT'"_s));
    }

    void traceOfADayIsDrawnWhole()
    {
        SpeedScriptViewer viewer(nullptr, false, nullptr);
        viewer.resize(1200, 220);
        QList<double> speeds;
        for (qint64 i = 0; i < 432'000; ++i)
            speeds.append(15 + static_cast<double>(i * 7919 % 1500) / 100);
        viewer.setTimeSpan(86'400);
        viewer.setSpeedTrace(speeds);
        const auto isGreen = [](const QImage &picture, int x, int y) {
            return picture.pixelColor(x, y).green() > picture.pixelColor(x, y).red();
        };
        const QImage picture = viewer.grab().toImage();
        const QRect plot = viewer.plotRectangle();
        for (int x = plot.left() + 1; x < plot.right(); ++x) {
            for (const int y : {plot.bottom() - 2, plot.center().y() + 2})
                QVERIFY2(isGreen(picture, x, y), qPrintable(QString::number(x)));
        }
        viewer.clearRecord();
        QVERIFY(!isGreen(viewer.grab().toImage(), plot.center().x(), plot.center().y() + 2));
    }

private:
    void show(const ScriptPoints &points, bool editable = true)
    {
        m_script->setPointList(points);
        m_viewer = std::make_unique<SpeedScriptViewer>(m_script.get(), editable, nullptr);
        m_viewer->resize(760, 620);
        m_viewer->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_viewer.get()));
        m_viewer->grab();
    }

    /// The place in a plot of 10 s.
    QPoint at(double seconds, double speed) const
    {
        const QRect plot = m_viewer->plotRectangle();
        return {static_cast<int>(plot.left() + seconds * plot.width() / 10),
                static_cast<int>(plot.top() + plot.height() - speed * plot.height() / 30)};
    }

    void mouse(QEvent::Type type, QPoint position, Qt::KeyboardModifiers modifiers = {})
    {
        const QPoint global = m_viewer->mapToGlobal(position);
        QCursor::setPos(global);
        QMouseEvent event(type, position, global, Qt::LeftButton, Qt::LeftButton, modifiers);
        QApplication::sendEvent(m_viewer.get(), &event);
    }

    void drag(QPoint from, QPoint to, bool moved = true)
    {
        mouse(QEvent::MouseButtonPress, from);
        if (moved)
            mouse(QEvent::MouseMove, to);
        mouse(QEvent::MouseButtonRelease, to);
    }

    /// What is on disk.
    ScriptPoints stored() const
    {
        SpeedScript copy(m_script->getFilepath());
        copy.reload();
        copy.parsePoints();
        return copy.pointList();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SpeedScript> m_script;
    std::unique_ptr<SpeedScriptViewer> m_viewer;
};

QTEST_MAIN(TestSpeedScriptViewer)
#include "tst_speedscriptviewer.moc"
