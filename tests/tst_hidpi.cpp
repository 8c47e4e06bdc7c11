#include "lexoria/hidpi.h"
#include "lexoria/lexoria.h"

#include <QLabel>
#include <QtTest>

// The program on a screen of twice the pixels, as QT_SCALE_FACTOR=2 gives one anywhere.
class tst_HiDpi : public QObject
{
    Q_OBJECT

public:
    static void initMain()
    {
        qputenv("QT_SCALE_FACTOR", "2");
        hidpi::enableScaling();
    }

private slots:
    void windowKeepsItsSizeWithTwiceThePixels();
    void instructorIsSharp();
};

void tst_HiDpi::windowKeepsItsSizeWithTwiceThePixels()
{
    lexoria window;
    window.openLexoria();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.size(), QSize(1211, 695));
    const QPixmap picture = window.grab();
    QCOMPARE(picture.devicePixelRatio(), 2.0);
    QCOMPARE(picture.size(), QSize(2422, 1390));
}

// Every pose the instructor takes comes from a picture of twice its label's pixels.
void tst_HiDpi::instructorIsSharp()
{
    lexoria window;
    window.openLexoria();
    auto *instructor = window.findChild<QLabel *>(QStringLiteral("piclabel1"));
    QVERIFY(instructor);
    const QPixmap shown = instructor->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.devicePixelRatio(), 2.0);
    QCOMPARE(shown.size(), instructor->size() * 2);

    for (const char *pose : {"chdown", "chmiddle", "chup"}) {
        const QPixmap picture
            = hidpi::pixmap(QStringLiteral(":/new/prefix1/%1.png").arg(QLatin1String(pose)));
        QCOMPARE(picture.devicePixelRatio(), 2.0);
        QCOMPARE(picture.size(), instructor->size() * 2);
    }
}

QTEST_MAIN(tst_HiDpi)
#include "tst_hidpi.moc"
