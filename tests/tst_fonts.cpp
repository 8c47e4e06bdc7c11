#include "lexoria/fonts.h"
#include "lexoria/hidpi.h"
#include "lexoria/lexoria.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QFontInfo>
#include <QLabel>
#include <QMainWindow>
#include <QPainterPath>
#include <QPushButton>
#include <QRadioButton>
#include <QRawFont>
#include <QStyle>
#include <QTextDocument>
#include <QtTest>

#include <memory>

class tst_Fonts : public QObject
{
    Q_OBJECT

public:
    // The program's main() scales the same way before its application object exists.
    static void initMain() { hidpi::enableScaling(); }

private slots:
    void initTestCase();

    void familiesResolve_data();
    void familiesResolve();
    void symbolTextsHaveGlyphs();
    void textsFit_data();
    void textsFit();

private:
    QMainWindow *window(const QString &name) const;

    std::unique_ptr<lexoria> main;
};

void tst_Fonts::initTestCase()
{
    main = std::make_unique<lexoria>();
    main->openLexoria();
    // The reading windows are made when the player first opens one, from the opening window.
    auto *opening = main->findChild<QMainWindow *>(QStringLiteral("openingWindow"));
    QVERIFY(opening);
    opening->findChild<QPushButton *>(QStringLiteral("openInstructions"))->click();
    for (const char *name : {"instructions", "selfExplore", "exploreWorld", "aboutWindow"}) {
        QMainWindow *reading = window(QLatin1String(name));
        QVERIFY(reading);
        reading->show();
    }
}

QMainWindow *tst_Fonts::window(const QString &name) const
{
    if (name == main->objectName())
        return main.get();
    return main->findChild<QMainWindow *>(name);
}

void tst_Fonts::familiesResolve_data()
{
    QTest::addColumn<QString>("family");
    for (const QString &family : fonts::formFamilies())
        QTest::newRow(qPrintable(family)) << family;
}

// Without a mapping Qt quietly takes its generic fallback, which is what a family that does
// not exist resolves to.
void tst_Fonts::familiesResolve()
{
    QFETCH(QString, family);
    const QString fallback = QFontInfo(QFont(QStringLiteral("No Such Family 7f3e"))).family();
    const QString resolved = QFontInfo(QFont(family)).family();
    QVERIFY2(
        resolved != fallback, qPrintable(family + QLatin1String(" falls back on ") + fallback));

    const bool symbol = family.startsWith(QLatin1String("Wingdings"))
        || family.startsWith(QLatin1String("Webdings"));
    QCOMPARE(resolved == QLatin1String(fonts::symbolFamily), symbol);
}

// Every letter written in a symbol font must be drawn by ours, not by a text font behind it:
// the letters of the form's widgets in a symbol family, and those of the panels that use one.
void tst_Fonts::symbolTextsHaveGlyphs()
{
    const QRawFont symbols = QRawFont::fromFont(QFont(QLatin1String(fonts::symbolFamily), 24));
    QCOMPARE(symbols.familyName(), QLatin1String(fonts::symbolFamily));

    QString texts = fonts::symbolTexts();
    int symbolWidgets = 0;
    for (auto *widget : main->findChildren<QWidget *>()) {
        widget->ensurePolished();
        if (QFontInfo(widget->font()).family() != QLatin1String(fonts::symbolFamily))
            continue;
        ++symbolWidgets;
        if (auto *button = qobject_cast<QAbstractButton *>(widget))
            texts += button->text();
        else if (auto *label = qobject_cast<QLabel *>(widget))
            texts += label->text();
    }
    // Reverse, random and forward of four games and of the sample row.
    QVERIFY2(symbolWidgets >= 15, qPrintable(QString::number(symbolWidgets)));

    for (const QChar letter : qAsConst(texts)) {
        QVERIFY2(symbols.supportsCharacter(letter), qPrintable(QString(letter)));
        const QVector<quint32> glyph = symbols.glyphIndexesForString(QString(letter));
        QVERIFY2(!symbols.pathForGlyph(glyph.value(0)).isEmpty(), qPrintable(QString(letter)));
    }
}

void tst_Fonts::textsFit_data()
{
    QTest::addColumn<QString>("windowName");
    for (const char *name :
        {"lexoria", "openingWindow", "instructions", "selfExplore", "exploreWorld", "aboutWindow"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

// Text must fit its widget in the font it resolves to: every line in width, a single line in
// height too. Rich text and pictures are laid out by other means and left out.
void tst_Fonts::textsFit()
{
    QFETCH(QString, windowName);
    QMainWindow *top = window(windowName);
    QVERIFY(top);

    QStringList clipped;
    int measured = 0;
    for (QWidget *widget : top->findChildren<QWidget *>()) {
        // Labels kept outside the window only hold texts that others show.
        if (widget->window() != top
            || !top->rect().intersects(QRect(widget->mapTo(top, QPoint()), widget->size())))
            continue;
        widget->ensurePolished();
        QString text;
        int room = 0;
        if (auto *label = qobject_cast<QLabel *>(widget)) {
            if (label->wordWrap() || label->textFormat() == Qt::RichText
                || Qt::mightBeRichText(label->text()))
                continue;
            text = label->text();
            room = label->contentsRect().width() - 2 * label->margin() - qMax(label->indent(), 0);
        } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
            text = button->text().remove(QLatin1Char('&'));
            const QStyle *style = button->style();
            if (qobject_cast<QRadioButton *>(button))
                room = button->width() - style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth)
                    - style->pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
            else if (qobject_cast<QCheckBox *>(button))
                room = button->width() - style->pixelMetric(QStyle::PM_IndicatorWidth)
                    - style->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
            else
                room = button->width() - 2 * style->pixelMetric(QStyle::PM_DefaultFrameWidth);
        } else {
            continue;
        }
        if (text.trimmed().isEmpty())
            continue;
        ++measured;
        const QFontMetrics metrics = widget->fontMetrics();
        const QStringList lines = text.split(QLatin1Char('\n'));
        int wide = 0;
        for (const QString &line : lines)
            wide = qMax(wide, metrics.horizontalAdvance(line));
        // A caption of several lines may lean on the ink's room inside the line spacing;
        // a single line must fit whole.
        const int tall = lines.size() == 1 ? metrics.height() : 0;
        if (wide > room || tall > widget->contentsRect().height())
            clipped << QStringLiteral("%1 \"%2\" needs %3 x %4 of %5 x %6 px in %7")
                           .arg(widget->objectName(), text)
                           .arg(wide)
                           .arg(tall)
                           .arg(room)
                           .arg(widget->contentsRect().height())
                           .arg(QFontInfo(widget->font()).family());
    }
    QVERIFY(measured > 0);
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(QLatin1String("\n"))));
}

QTEST_MAIN(tst_Fonts)
#include "tst_fonts.moc"
