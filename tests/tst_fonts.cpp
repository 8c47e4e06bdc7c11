#include "lexoria/fonts.h"
#include "lexoria/lexoria.h"

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

namespace {

const QString symbolFamily = QLatin1String(fonts::symbolFamily);

// The width a widget leaves its text: a radio button's or check box's indicator and the gap
// after it, a push button's frame.
int roomForText(QWidget *widget)
{
    const QStyle *style = widget->style();
    if (auto *label = qobject_cast<QLabel *>(widget))
        return label->contentsRect().width() - 2 * label->margin() - qMax(label->indent(), 0);
    if (qobject_cast<QRadioButton *>(widget))
        return widget->width() - style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth)
            - style->pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
    if (qobject_cast<QCheckBox *>(widget))
        return widget->width() - style->pixelMetric(QStyle::PM_IndicatorWidth)
            - style->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    return widget->width() - 2 * style->pixelMetric(QStyle::PM_DefaultFrameWidth);
}

// Text as the widget sets it on lines of its own; empty for wrapped and rich text, pictures
// and other widgets.
QString plainText(QWidget *widget)
{
    if (auto *label = qobject_cast<QLabel *>(widget))
        return label->wordWrap() || label->textFormat() == Qt::RichText
                || Qt::mightBeRichText(label->text())
            ? QString()
            : label->text();
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        return button->text().remove(QLatin1Char('&'));
    return {};
}

} // namespace

class tst_Fonts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void familiesResolve_data();
    void familiesResolve();
    void symbolTextsHaveGlyphs();
    void textsFit_data();
    void textsFit();

private:
    std::unique_ptr<lexoria> main;
};

void tst_Fonts::initTestCase()
{
    main = std::make_unique<lexoria>();
    main->openLexoria();
    // The reading windows are made when the player first opens one from the opening window.
    main->findChild<QPushButton *>(QStringLiteral("openInstructions"))->click();
    for (const char *name : {"selfExplore", "exploreWorld", "aboutWindow"})
        main->findChild<QMainWindow *>(QLatin1String(name))->show();
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
    QVERIFY2(resolved != fallback, qPrintable(family + QLatin1String(" -> ") + fallback));
    const bool symbol = family.startsWith(QLatin1String("Wingdings"))
        || family.startsWith(QLatin1String("Webdings"));
    QCOMPARE(resolved == symbolFamily, symbol);
}

// Each letter written in a symbol font must have a drawing of ours, or a text font behind it
// shows the plain letter: the letters of the form's widgets in the symbol font, and those of
// the panels that use it.
void tst_Fonts::symbolTextsHaveGlyphs()
{
    const QRawFont symbols = QRawFont::fromFont(QFont(symbolFamily, 24));
    QCOMPARE(symbols.familyName(), symbolFamily);
    QString texts = fonts::symbolTexts();
    int symbolWidgets = 0;
    for (QWidget *widget : main->findChildren<QWidget *>()) {
        widget->ensurePolished();
        if (QFontInfo(widget->font()).family() == symbolFamily) {
            ++symbolWidgets;
            texts += plainText(widget);
        }
    }
    // At least reverse, random and forward of the four games and of the sample row.
    QVERIFY2(symbolWidgets >= 15, qPrintable(QString::number(symbolWidgets)));
    for (const QChar letter : qAsConst(texts)) {
        const quint32 glyph = symbols.glyphIndexesForString(QString(letter)).value(0);
        QVERIFY2(glyph && !symbols.pathForGlyph(glyph).isEmpty(), qPrintable(QString(letter)));
    }
}

void tst_Fonts::textsFit_data()
{
    QTest::addColumn<QString>("window");
    for (const char *name :
        {"lexoria", "openingWindow", "instructions", "selfExplore", "exploreWorld", "aboutWindow"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

// Text must fit its widget in the font it resolves to: every line in width, the ink of a single
// line in height too (several lines may lean on the room inside the line spacing).
void tst_Fonts::textsFit()
{
    QFETCH(QString, window);
    QWidget *top = window == main->objectName() ? main.get() : main->findChild<QWidget *>(window);
    QVERIFY(top && top->isVisible());

    QStringList clipped;
    int measured = 0;
    for (QWidget *widget : top->findChildren<QWidget *>()) {
        // Labels kept outside their parent only hold texts that others show. Panels parked
        // outside the window are measured: they slide in.
        if (widget->window() != top
            || !widget->parentWidget()->rect().intersects(widget->geometry()))
            continue;
        widget->ensurePolished();
        const QString text = plainText(widget);
        if (text.trimmed().isEmpty())
            continue;
        ++measured;
        const QFontMetrics metrics = widget->fontMetrics();
        const QStringList lines = text.split(QLatin1Char('\n'));
        int wide = 0;
        for (const QString &line : lines)
            wide = qMax(wide, metrics.horizontalAdvance(line));
        const int tall = lines.size() == 1 ? metrics.tightBoundingRect(text).height() : 0;
        if (wide > roomForText(widget) || tall > widget->contentsRect().height())
            clipped << QStringLiteral("%1 \"%2\": %3 x %4 px in %5 x %6, %7")
                           .arg(widget->objectName(), text)
                           .arg(wide)
                           .arg(tall)
                           .arg(roomForText(widget))
                           .arg(widget->contentsRect().height())
                           .arg(QFontInfo(widget->font()).family());
    }
    QVERIFY(measured > 0);
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(QLatin1Char('\n'))));
}

QTEST_MAIN(tst_Fonts)
#include "tst_fonts.moc"
