#include "framework/common/ntimer.h"
#include "framework/common/widgets/iconfit.h"
#include "framework/common/widgets/iconwidget.h"
#include "framework/common/widgets/listcombobox.h"
#include "framework/common/widgets/nellipse.h"
#include "framework/common/widgets/npushbutton.h"
#include "framework/common/widgets/nscrollviewer.h"
#include "framework/common/widgets/nstackpanel.h"

#include "files.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPointer>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

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
        const auto box = [&panel] { return qobject_cast<QBoxLayout *>(panel.layout()); };
        QWidget first;
        QLabel second;
        panel << &first << nullptr << &second;
        panel.setItemAlignment(&first, Qt::AlignRight);
        panel.setItemAlignmentByIndex(9, Qt::AlignRight);
        QCOMPARE(box()->itemAt(0)->alignment(), Qt::AlignRight);
        QWidget third;
        panel.add(&third);
        QCOMPARE(box()->itemAt(0)->alignment(), Qt::AlignLeft);
        QCOMPARE((QList{box()->stretch(0), box()->stretch(1), box()->stretch(2)}), (QList{0, 0, 100}));
        panel.setOrientation(Qt::Vertical);
        panel.remove(&third);
        QCOMPARE(third.parentWidget(), nullptr);
        QCOMPARE(box()->stretch(1), 100);
        QCOMPARE(box()->itemAt(1)->alignment(), Qt::AlignTop);
        panel.remove(&third);
        first.setParent(nullptr);
        QCOMPARE(panel.count(), 1);
        QCOMPARE(panel.at(0), &second);
        QCOMPARE(panel.at(1), nullptr);
        second.setParent(nullptr);
    }

    void placeholderShowsWhileEmpty()
    {
        NScrollViewer viewer(Qt::Vertical);
        const QPointer<QLabel> label =
            viewer.setPlaceholderText(u"empty"_s, Qt::AlignCenter, Qt::AlignRight, u"subtext"_s, 7);
        QCOMPARE(label->objectName(), u"subtext"_s);
        viewer.show();
        QVERIFY(label->isVisible());
        const QPointer<QWidget> item = new QWidget;
        viewer.add(item);
        QVERIFY(!label->isVisible());
        viewer.clear();
        QVERIFY(label->isVisible() && !item->isVisible() && viewer.count() == 0);
        QTRY_VERIFY(!item);
        viewer.setPlaceholderText(u"other"_s, Qt::AlignCenter, Qt::AlignLeft, {}, 0);
        QVERIFY(!label);
        viewer.setPlaceholderWidget(nullptr, Qt::AlignCenter);
        QCOMPARE(viewer.findChildren<QLabel *>().size(), 0);
        viewer.setTransparentBackground(true);
        QVERIFY(viewer.findChild<QScrollArea *>()->styleSheet().startsWith(
            "QScrollArea { background: transparent; border: 0; } "_L1));
    }

    void iconFits()
    {
        QCOMPARE(iconFit({40, 20}, {20, 10}), QRectF(0, 0, 40, 20));
        QCOMPARE(iconFit({45, 20}, {10, 10}), QRectF(12, 0, 20, 20));
        QCOMPARE(iconFit({10, 25}, {20, 10}), QRectF(0, 10, 10, 5));
        QCOMPARE(iconFit({10, 25}, {0, 0}), QRectF());
    }

    void comboBoxShowsAListWhenOpened()
    {
        ListComboBox box;
        box.addItems({u"a"_s, u"b"_s});
        box.setFont(QFont(box.font().family(), 10));
        const int height = box.sizeHint().height();
        box.setFont(QFont(box.font().family(), 40));
        QVERIFY(box.sizeHint().height() > height);
        box.show();
        box.showPopup();
        QCOMPARE(box.view()->metaObject(), &QListView::staticMetaObject);
        QTest::keyClick(box.view(), Qt::Key_Down);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QTRY_COMPARE(box.currentText(), u"b"_s);
    }

    void iconDrawsItsFile()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.svg"_s);
        QVERIFY(writeFile(path, "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'>"
                                "<rect width='10' height='10' fill='#ff0000'/></svg>"));
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
        IconWidget icon(u":/resources/images/speed_on.svg"_s, {}, QSize(200, 200), {});
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
        QCOMPARE(dot.maximumSize(), QSize(QWIDGETSIZE_MAX, 8));
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
        const auto heard = [&log](const QString &what) {
            return [&log, what](bool on) { log << what + (on ? u" 1"_s : u" 0"_s); };
        };
        connect(&button, &NPushButton::mouseHoverChanged, this, heard(u"hover"_s));
        connect(&button, &NPushButton::enabledStateChanged, this, heard(u"enabled"_s));
        connect(&button, &NPushButton::onVisibleChanged, this, heard(u"visible"_s));
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
        NTimer timer;
        timer.setObjectName(u"blink"_s);
        QSignalSpy fired(&timer, &NTimer::timeout);
        timer.start(1);
        QVERIFY(fired.wait());
        QTest::ignoreMessage(QtDebugMsg, "blink stopped");
        timer.stop();
        QVERIFY(!timer.isActive());
    }
};

QTEST_MAIN(TestWidgetKit)
#include "tst_widgetkit.moc"
