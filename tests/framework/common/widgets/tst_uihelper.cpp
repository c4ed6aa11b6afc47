#include "framework/common/widgets/npushbutton.h"
#include "framework/common/widgets/uihelper.h"

#include <QDesktopServices>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class TestUIHelper : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened = url; }

private slots:
    void labelsCarryTheirSheet_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("bold");
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("all") << 12 << false << u"Mono"_s
                             << u"QLabel { font-size: 12px; color: #ff0000; font-family: Mono; }"_s;
        QTest::newRow("bold") << 12 << true << QString()
                              << u"QLabel { font-size: 12px; color: #ff0000; font-weight: bold}"_s;
        QTest::newRow("colour alone") << 0 << false << QString() << u"QLabel { color: #ff0000; }"_s;
    }

    void labelsCarryTheirSheet()
    {
        QFETCH(int, size);
        QFETCH(bool, bold);
        QFETCH(QString, family);
        const std::unique_ptr<QLabel> label(UIHelper::GenerateLabel(u"x"_s, size, Qt::red, bold, family));
        QTEST(label->styleSheet(), "sheet");
    }

    void clearingReachesInnerLayouts()
    {
        QWidget host;
        auto *outer = new QVBoxLayout(&host);
        auto *inner = new QHBoxLayout;
        outer->addLayout(inner);
        outer->addSpacing(3);
        QList<QPointer<QWidget>> widgets;
        for (QBoxLayout *layout : {static_cast<QBoxLayout *>(outer), static_cast<QBoxLayout *>(inner)}) {
            widgets.append(new QLabel(u"x"_s));
            layout->addWidget(widgets.last());
        }
        const QPointer<QHBoxLayout> watched(inner);
        UIHelper::ClearLayout(outer, false);
        QCOMPARE(outer->count(), 0);
        QVERIFY(!watched);
        QVERIFY(host.findChildren<QWidget *>().isEmpty());
        QTRY_VERIFY(!widgets.at(0) && !widgets.at(1));
        QCOMPARE(host.layout(), outer);
        UIHelper::ClearLayout(outer, true);
        QVERIFY(!host.layout());
    }

    void insertingReplacesWhatWasThere()
    {
        QWidget host;
        auto *old = new QVBoxLayout(&host);
        const QPointer<QWidget> gone(new QLabel(u"old"_s));
        old->addWidget(gone);
        auto *child = new QLabel(u"new"_s);
        UIHelper::InsertToWidget(&host, child, 7, Qt::AlignRight);
        auto *grid = qobject_cast<QGridLayout *>(host.layout());
        QVERIFY(grid);
        QCOMPARE(grid->contentsMargins(), QMargins(7, 7, 7, 7));
        QCOMPARE(grid->verticalSpacing() + grid->horizontalSpacing(), 0);
        QCOMPARE(grid->itemAtPosition(0, 0)->widget(), child);
        QCOMPARE(grid->itemAtPosition(0, 0)->alignment(), Qt::AlignRight);
        QTRY_VERIFY(!gone);
    }

    void linksOpenTheirAddress()
    {
        QDesktopServices::setUrlHandler(u"spinbar-test"_s, this, "open");
        const std::unique_ptr<QPushButton> button(
            UIHelper::GenerateLinkButton(u"spinbar-test:x"_s, {}, {}, u"linkButton"_s));
        QCOMPARE(button->text(), u"spinbar-test:x"_s);
        QCOMPARE(button->toolTip(), u"spinbar-test:x"_s);
        QVERIFY(button->isFlat());
        button->click();
        QCOMPARE(m_opened, QUrl(u"spinbar-test:x"_s));
        QDesktopServices::unsetUrlHandler(u"spinbar-test"_s);
    }

    void buttonsSpeakOnlyOfChanges()
    {
        NPushButton button(u"x"_s);
        QStringList heard;
        connect(&button, &NPushButton::enabled, this, [&] { heard += u"enabled"_s; });
        connect(&button, &NPushButton::disabled, this, [&] { heard += u"disabled"_s; });
        connect(&button, &NPushButton::enabledStateChanged, this,
                [&](bool on) { heard += on ? u"on"_s : u"off"_s; });
        connect(&button, &NPushButton::mouseHoverChanged, this,
                [&](bool on) { heard += on ? u"over"_s : u"away"_s; });
        connect(&button, &NPushButton::onVisibleChanged, this,
                [&](bool on) { heard += on ? u"shown"_s : u"hidden"_s; });
        const auto hover = [&button](QEvent::Type type) {
            QEvent event(type);
            QCoreApplication::sendEvent(&button, &event);
        };
        button.enable();
        hover(QEvent::Enter);
        button.disable();
        button.disable();
        hover(QEvent::Leave);
        button.setEnabledState(true);
        hover(QEvent::Leave);
        button.show();
        button.hide();
        QCOMPARE(heard.join(' '_L1), u"over disabled off enabled on away shown hidden"_s);
    }

    void theFirstPathThatExistsIsFound()
    {
        QCOMPARE(UIHelper::findValidResource({u":/none"_s, u"/"_s, u":/"_s}), u"/"_s);
        QCOMPARE(UIHelper::findValidResource({u":/none"_s}), QString());
    }

private:
    QUrl m_opened;
};

QTEST_MAIN(TestUIHelper)
#include "tst_uihelper.moc"
