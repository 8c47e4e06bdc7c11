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
    void instructorIsSharp();
};

// The instructor is drawn from a picture of twice its label's pixels.
void tst_HiDpi::instructorIsSharp()
{
    lexoria window;
    window.openLexoria();
    auto *instructor = window.findChild<QLabel *>(QStringLiteral("piclabel1"));
    QVERIFY(instructor);
    const QPixmap shown = instructor->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.devicePixelRatio(), 2.0);
    QCOMPARE(shown.size(), instructor->size() * 2);
}

QTEST_MAIN(tst_HiDpi)
#include "tst_hidpi.moc"
