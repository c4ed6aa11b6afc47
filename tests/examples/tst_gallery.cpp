#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// Starts the gallery program as a user would, and looks at what it shows.
class TestGallery : public QObject
{
    Q_OBJECT

private:
    static int exitCode(const QStringList &arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(SPINBAR_GALLERY), arguments);
        return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit ? process.exitCode()
                                                                                         : -1;
    }

    static QSet<QRgb> colors(const QImage &image)
    {
        QSet<QRgb> found;
        for (int y = 0; y < image.height(); y += 3) {
            for (int x = 0; x < image.width(); x += 3)
                found.insert(image.pixel(x, y));
        }
        return found;
    }

private slots:
    void everyPageShowsItselfInBothThemesAndLanguages()
    {
        const QTemporaryDir folder;
        QCOMPARE(exitCode({u"--pictures"_s, folder.path()}), 0);
        for (const QString &page : {u"kit"_s, u"charts"_s, u"form"_s, u"console"_s}) {
            QList<QImage> pictures;
            for (const QString &kind :
                 {u"en_US-light"_s, u"en_US-dark"_s, u"ru_RU-light"_s, u"ru_RU-dark"_s}) {
                const QImage picture(folder.filePath(u"%1-%2.png"_s.arg(page, kind)));
                QVERIFY2(colors(picture).size() > 20, qPrintable(page + kind));
                // The corner is the window's own background.
                QCOMPARE(picture.pixelColor(1, 1).lightness() < 128, kind.endsWith("dark"_L1));
                QVERIFY2(!pictures.contains(picture), qPrintable(page + kind));
                pictures.append(picture);
            }
        }
    }

    void tellsWhenPicturesCannotBeSaved()
    {
        QCOMPARE(exitCode({u"--pictures"_s, u"/dev/null"_s}), 1);
        QCOMPARE(exitCode({u"--unknown"_s}), 1);
    }
};

QTEST_GUILESS_MAIN(TestGallery)
#include "tst_gallery.moc"
