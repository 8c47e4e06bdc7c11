#ifndef STYLEPIECES_H
#define STYLEPIECES_H

#include <QColor>
#include <QString>

// A look is never stored as a whole: it is concatenated from these pieces, in a fixed order,
// whenever a widget changes state. Changing a colour means rewriting a piece and restyling.
QString rgbaText(const QColor &color);
QString rgbaTextWithSemicolon(const QColor &color);
QString nameText(const QColor &color);
QString verticalGradient(const QString &top, const QString &stop, const QString &base);

struct StylePieces
{
    QString keysBgStyle = verticalGradient("black", ".5", "black");
    QString keysBorderStyle;
    QString keypressBgStyle = verticalGradient("black", ".5", "black");
    QString keypressBorderStyle
        = "border-style:none; border-width:0px;  border-color: transparent;";
    QString mouseoverBgStyle = verticalGradient("gold", ".5", "gold");
    QString mouseoverBorderStyle;
    QString highlightBgStyle = verticalGradient("gold", ".5", "gold");
    QString highlightBorderStyle;
    QString finishedBgStyle = verticalGradient("rgb(115, 115, 115)", ".5", "rgb(115, 115, 115)");
    QString finishedColorStyle = " color: white; ";
    QString wallpaperBgStyle = verticalGradient("white", ".5", "white");
    QString wallpaperBorderStyle;
    QString rainbowBgStyle = verticalGradient("black", ".5", "black");
    QString rainbowBorderStyle;

    QString englishColorStyle = "color: white;";
    QString upperColorStyle = "color: white;";
    QString lowerColorStyle = "color: white;";
    QString keypressEnglishColorStyle = "color: blue;";
    QString keypressRussianColorStyle = "color: blue;";
    QString mouseoverEnglishColorStyle = " color: blue; ";
    QString mouseoverRussianColorStyle = " color: blue; ";
    QString highlightEnglishColorStyle = "color: black;";
    QString highlightRussianColorStyle = "color: black;";
    // The press colours shown on the gold key; pickers 4 and 5 keep them equal to the keypress
    // ones.
    QString goldKeyEnglishColorStyle = keypressEnglishColorStyle;
    QString goldKeyRussianColorStyle = keypressRussianColorStyle;

    QString englishFontStyle = "font-family: Calibri;";
    QString upperFontStyle = "font-family: Arial Unicode MS;";
    QString lowerFontStyle;
    QString demoUpperFontStyle = "font-size: 20pt; font-family: 'Arial Unicode MS'; ";
    QString demoLowerFontStyle = "font-size: 20pt; font-family: 'Arial Unicode MS'; ";
    QString demoEnglishFontStyle = "font-size: 20pt; font-family: Calibri;";

    QString keyRadiusStyle = "border-radius: 10px;";
    QString barRadiusStyle = "border-radius: 10px;";
    QString demoRadiusStyle = "border-radius: 10px;";
    QString demRadiusStyle = "border-radius: 10px;";
    QString gamePlayRadiusStyle = "border-radius: 10px;";

    QString gamePlayBgStyle = verticalGradient("white", ".5", "white");
    QString gamePlayBorderStyle = "border: 1px solid #6e6e6e;";
    QString matchTextColorStyle = "color: black;";
    QString userTextColorStyle = "color: black;";

    // The guide lines: one colour set for the bars across, one for the bars down.
    QString lineHorizontalColor = "blue";
    QString lineHorizontalGradColor = "blue";
    QString lineHorizontalRadialColor = "blue";
    QString lineHorizontalRadialGradColor = "blue";
    QString lineVerticalColor = "blue";
    QString lineVerticalGradColor = "blue";
    QString lineVerticalRadialColor = "blue";
    QString lineVerticalRadialGradColor = "blue";
    QString lineGradStop = ".5";
    QString lineHighHorizontalStyle
        = verticalGradient(lineHorizontalGradColor, lineGradStop, lineHorizontalColor);
    QString lineHighVerticalStyle
        = verticalGradient(lineVerticalGradColor, lineGradStop, lineVerticalColor);
};

#endif
