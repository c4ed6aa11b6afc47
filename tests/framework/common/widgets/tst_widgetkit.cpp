#include "framework/common/ntimer.h"
#include "framework/common/widgets/iconfit.h"
#include "framework/common/widgets/iconwidget.h"
#include "framework/common/widgets/nellipse.h"
#include "framework/common/widgets/npushbutton.h"
#include "framework/common/widgets/nscrollviewer.h"
#include "framework/common/widgets/nstackpanel.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QBoxLayout *boxOf(QWidget *panel)
{
    return qobject_cast<QBoxLayout *>(panel->layout());
}

/// The widget's own painting on full transparency.
QImage painted(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, {}, {}, {});
    return image;
}

} // namespace

class TestWidgetKit : public QObject
{
    Q_OBJECT

private slots:
    void lastItemTakesWhatIsLeft()
    {
        NStackPanel panel(Qt::Horizontal);
        QWidget first;
        QLabel second;
        panel << &first << nullptr << &second;
        panel.setItemAlignment(&first, Qt::AlignRight);
        panel.setItemAlignmentByIndex(9, Qt::AlignRight);
        QCOMPARE(boxOf(&panel)->itemAt(0)->alignment(), Qt::AlignRight);
        QPointer<QWidget> third = new QWidget;
        panel.add(third);
        QCOMPARE(boxOf(&panel)->itemAt(0)->alignment(), Qt::AlignLeft);
        QCOMPARE((QList{boxOf(&panel)->stretch(0), boxOf(&panel)->stretch(1), boxOf(&panel)->stretch(2)}),
                 (QList{0, 0, 100}));
        panel.setOrientation(Qt::Vertical);
        QCOMPARE(boxOf(&panel)->itemAt(0)->alignment(), Qt::AlignLeft);
        panel.remove(third);
        QCOMPARE(third->parentWidget(), nullptr);
        QCOMPARE(boxOf(&panel)->stretch(1), 100);
        QCOMPARE(boxOf(&panel)->itemAt(1)->alignment(), Qt::AlignTop);
        panel.remove(third);
        delete third;
        first.setParent(nullptr);
        QCOMPARE(panel.count(), 1);
        QCOMPARE(panel.at(0), &second);
        QCOMPARE(panel.at(1), nullptr);
        second.setParent(nullptr);
        panel.clear();
    }

    void placeholderShowsWhileEmpty()
    {
        NScrollViewer viewer(Qt::Vertical);
        viewer.resize(200, 100);
        QPointer<QLabel> label =
            viewer.setPlaceholderText(u"empty"_s, Qt::AlignCenter, Qt::AlignRight, u"subtext"_s, 7);
        QCOMPARE(label->objectName(), u"subtext"_s);
        QVERIFY(label->wordWrap() && label->contentsMargins() == QMargins(7, 7, 7, 7));
        viewer.show();
        QVERIFY(label->isVisible());
        QPointer<QWidget> item = new QWidget;
        viewer.add(item);
        QVERIFY(!label->isVisible());
        viewer.clear();
        QVERIFY(label->isVisible() && !item->isVisible() && viewer.count() == 0);
        QTRY_VERIFY(!item);
        viewer.setPlaceholderText(u"other"_s, Qt::AlignCenter, Qt::AlignLeft, {}, 0);
        QVERIFY(!label);
        viewer.setPlaceholderWidget(nullptr, Qt::AlignCenter);
        QCOMPARE(viewer.findChildren<QLabel *>().size(), 0);
    }

    void scrollAreaStyle()
    {
        QCOMPARE(NScrollViewer::styleText(Qt::red, 2, Qt::blue, false),
                 u"QScrollArea { background: #ff0000; border: 2px solid #0000ff; } "
                 "QScrollArea > QWidget > QWidget { background: #ff0000; } "_s);
        NScrollViewer viewer(Qt::Vertical);
        viewer.setTransparentBackground(true);
        QCOMPARE(viewer.findChild<QScrollArea *>()->styleSheet(),
                 u"QScrollArea { background: transparent; border: 0; } "
                 "QScrollArea > QWidget > QWidget { background: transparent; } "
                 "QScrollArea > QWidget > QWidget { background: #000}"_s);
    }

    void iconFits_data()
    {
        QTest::addColumn<QSize>("available");
        QTest::addColumn<QSize>("natural");
        QTest::addColumn<QRectF>("target");
        QTest::newRow("same proportions") << QSize(40, 20) << QSize(20, 10) << QRectF(0, 0, 40, 20);
        QTest::newRow("wide widget") << QSize(45, 20) << QSize(10, 10) << QRectF(12, 0, 20, 20);
        QTest::newRow("tall widget") << QSize(10, 25) << QSize(20, 10) << QRectF(0, 10, 10, 5);
        QTest::newRow("nothing to draw") << QSize(10, 25) << QSize(0, 0) << QRectF();
    }

    void iconFits()
    {
        QFETCH(QSize, available);
        QFETCH(QSize, natural);
        QTEST(iconFit(available, natural), "target");
    }

    void iconDrawsItsFile()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.svg"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'>"
                   "<rect width='10' height='10' fill='#ff0000'/></svg>");
        file.close();
        IconWidget icon(path, {}, QSize(40, 20), {});
        QCOMPARE(icon.minimumSize(), QSize(40, 20));
        QVERIFY(!icon.isAnimated());
        QCOMPARE(painted(icon).pixelColor(20, 10), QColor(Qt::red));
        QCOMPARE(painted(icon).pixelColor(5, 10).alpha(), 0);
        IconWidget blue(path, u"#0000ff"_s, QSize(40, 20), u"#ff0000"_s);
        QCOMPARE(painted(blue).pixelColor(20, 10), QColor(Qt::blue));
        icon.setEnabled(false);
        QVERIFY(qAbs(painted(icon).pixelColor(20, 10).alpha() - 128) <= 1);
        IconWidget missing(folder.filePath(u"b.svg"_s), {}, QSize(40, 20), {});
        QCOMPARE(missing.minimumSize(), QSize(40, 20));
        QCOMPARE(painted(missing).pixelColor(20, 10).alpha(), 0);
    }

    void animatedIconRepaintsWhileLive()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"turning.svg"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'><g>"
                   "<animateTransform attributeName='transform' type='translate' from='0 0' to='10 0'"
                   " begin='0s' dur='10s' repeatCount='indefinite'/>"
                   "<rect width='2' height='10' fill='#ff0000'/></g></svg>");
        file.close();
        IconWidget icon(path, {}, QSize(200, 200), {});
        QVERIFY(icon.isAnimated());
        icon.show();
        QVERIFY(QTest::qWaitForWindowExposed(&icon));
        const QImage first = painted(icon);
        QTRY_VERIFY(painted(icon) != first);
        icon.setEnabled(false);
        const QImage still = painted(icon);
        icon.setInvertedEnabledBehavior(true);
        QTRY_VERIFY(painted(icon) != still);
        icon.animate(false);
        QCOMPARE(painted(icon), still);
    }

    void ellipseTakesThePenOffBothRadii()
    {
        NEllipse dot(Qt::red, Qt::transparent, 0, 8, 0);
        QCOMPARE(dot.maximumHeight(), 8);
        QCOMPARE(dot.maximumWidth(), QWIDGETSIZE_MAX);
        QCOMPARE(NEllipse(Qt::red, Qt::black, 1, 8, 5).maximumHeight(), 5);
        NEllipse ring(Qt::red, Qt::blue, 2, 10, 10);
        ring.setFixedSize(10, 10);
        // A radius of 3 and a pen of 2 reach from 1 to 9.
        const QImage image = painted(ring);
        QCOMPARE(image.pixelColor(5, 5), QColor(Qt::red));
        QCOMPARE(image.pixelColor(0, 5).alpha(), 0);
        QCOMPARE(image.pixelColor(9, 5).alpha(), 0);
        QVERIFY(image.pixelColor(1, 5).blue() > 200);
    }

    void buttonTellsOfMouseStateAndVisibility()
    {
        QWidget window;
        NPushButton button(u"go"_s, &window);
        QStringList log;
        connect(&button, &NPushButton::mouseHoverChanged, this,
                [&](bool on) { log << u"hover %1"_s.arg(on); });
        connect(&button, &NPushButton::enabledStateChanged, this,
                [&](bool on) { log << u"enabled %1"_s.arg(on); });
        connect(&button, &NPushButton::onVisibleChanged, this,
                [&](bool on) { log << u"visible %1"_s.arg(on); });
        connect(&button, &NPushButton::doubleClicked, this, [&] { log << u"double"_s; });
        window.show();
        QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&button, &enter);
        button.disable();
        button.disable();
        QCoreApplication::sendEvent(&button, &leave);
        button.enable();
        QCoreApplication::sendEvent(&button, &leave);
        QTest::mouseDClick(&button, Qt::LeftButton);
        window.hide();
        QCOMPARE(log, (QStringList{u"visible 1"_s, u"hover 1"_s, u"enabled 0"_s, u"enabled 1"_s, u"hover 0"_s,
                                   u"double"_s, u"visible 0"_s}));
        QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);
    }

    void timerNamesItselfAtItsEnd()
    {
        auto timer = std::make_unique<NTimer>();
        timer->setObjectName(u"blink"_s);
        QSignalSpy fired(timer.get(), &NTimer::timeout);
        timer->start(1);
        QVERIFY(fired.wait());
        QTest::ignoreMessage(QtDebugMsg, "blink stopped");
        timer->stop();
        QVERIFY(!timer->isActive());
        QTest::ignoreMessage(QtDebugMsg, "Destroy ntimer");
        timer.reset();
    }
};

QTEST_MAIN(TestWidgetKit)
#include "tst_widgetkit.moc"
