#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QAbstractButton>
#include <QLabel>

using namespace keycatalogue;

// While a rainbow picker is open, every key the mouse enters copies the picker's live colour
// into its own paint slots, on the layer the Paint tab has chosen. An Enter touches only the
// labels of that one key, so that painting keeps up with a fast pointer.

namespace {

const QString transparent = QStringLiteral("background-color: transparent;");

constexpr int keyOfTheMap = 26; // the key "A key's map" shows

int controlIndexOf(int K)
{
    for (int i = 0; i < paintKeyCount - characterKeyCount; ++i) {
        if (controlKeys[i].number == K)
            return characterKeyCount + i;
    }
    return -1;
}

} // namespace

// The Paint tab's choices. The window's name table answers at once; a choice not made by the
// form (a test's stand-in) is looked for among the children.
bool lexoria::paintChoice(const char *name) const
{
    const QString objectName = QLatin1String(name);
    auto *button = ui->find<QAbstractButton>(objectName);
    if (!button)
        button = findChild<QAbstractButton *>(objectName);
    return button && button->isChecked();
}

void lexoria::paintFace(int K, int index, bool withBar)
{
    const bool both = paintChoice("rainbowBoth");
    const bool border = !both && paintChoice("rainbowBorder");
    const bool background = !both && !border && paintChoice("rainbowBackground");
    if (both || border)
        painted.paintBorderStyle[K] = pieces.rainbowBorderStyle;
    if (both || background)
        painted.paintBgStyle[K] = pieces.rainbowBgStyle;
    if (!both && !border && !background)
        return;
    const QString face
        = pieces.keyRadiusStyle + painted.paintBgStyle[K] + painted.paintBorderStyle[K];
    restyle(keyBgLabels[index], face);
    if (K == keyOfTheMap)
        restyle(ui->aKeysMap5, face);
    if (withBar && !border) {
        const CharacterKey &key = characterKey(K);
        const QString cell = pieces.barRadiusStyle + painted.paintBgStyle[K];
        restyle(barBgLabels[key.lower - 1], cell);
        restyle(barBgLabels[key.upper - 1], cell);
    }
}

void lexoria::paintEnglish(int K, int index)
{
    if (!paintChoice("rainbowEnglish"))
        return;
    painted.paintEnglishColor[K] = pieces.englishColorStyle;
    const QString english = painted.paintEnglishColor[K] + pieces.englishFontStyle;
    restyle(keyEnglishLabels[index], english);
    if (K == 6) {
        painted.paintUnderscoreLeftColor = pieces.englishColorStyle;
        restyle(ui->underscore_left, english);
    } else if (K == 10) {
        painted.paintUnderscoreRightColor = pieces.englishColorStyle;
        restyle(ui->underscore_right, english);
    } else if (K == keyOfTheMap) {
        if (QWidget *map = ui->widget(QStringLiteral("aKeysMap4")))
            restyle(map, transparent + english);
    }
}

void lexoria::paintLetter(int n)
{
    const bool upper = isUpperRow(n);
    if (!paintChoice(upper ? "rainbowUppercase" : "rainbowLowercase"))
        return;
    painted.paintCharColor[n] = upper ? pieces.upperColorStyle : pieces.lowerColorStyle;
    const QString letter = painted.paintCharColor[n] + fontPiece(n);
    restyle(keyLetterLabels[n - 1], letter);
    restyle(barLabels[n - 1], letter);
    const CharacterKey &mapKey = characterKey(keyOfTheMap);
    const char *map = n == mapKey.lower ? "aKeysMap3" : n == mapKey.upper ? "aKeysMap2" : nullptr;
    if (map) {
        if (QWidget *label = ui->widget(QLatin1String(map)))
            restyle(label, transparent + letter);
    }
}

void lexoria::paintKey(int k)
{
    paintFace(k, k - 1, true);
    paintEnglish(k, k - 1);
    const CharacterKey &key = characterKey(k);
    paintLetter(key.lower);
    paintLetter(key.upper);
}

void lexoria::paintBarCell(int n)
{
    const int k = keyOfLetter(n);
    paintFace(k, k - 1, true);
    // The capital on the ] key paints that key's English text too, the one cell that does.
    if (n == 61)
        paintEnglish(k, k - 1);
    paintLetter(n);
}

void lexoria::paintControl(int K)
{
    const int index = controlIndexOf(K);
    if (index < 0)
        return;
    paintFace(K, index, false);
    paintEnglish(K, index);
}
