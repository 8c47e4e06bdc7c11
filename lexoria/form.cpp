#include "lexoria/form.h"

#include "lexoria/formtable.h"
#include "lexoria/keycatalogue.h"

#include <QCheckBox>
#include <QFontComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLCDNumber>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>

using namespace formtable;
using namespace keycatalogue;

namespace {

// Row of `table` (1-based, as the captions are numbered) and its caption.
struct GameCaption
{
    int row;
    const char *text;
};

constexpr GameCaption gameCaptions[] = {
    {1, "А - Я"},
    {2, "а - я"},
    {3, "1 - /"},
    {4, "а - /"},
    {6, "Я - А"},
    {7, "я - а"},
    {8, "/ - 1"},
    {9, "/ - а"},
    {11, "Ж Ы Н"},
    {12, "х я й"},
    {13, "№ 9 !"},
    {14, "э Я )"},
};

QWidget *makeWidget(Kind kind, QWidget *parent)
{
    switch (kind) {
    case Label:
        return new QLabel(parent);
    case PushButton:
        return new QPushButton(parent);
    case RadioButton:
        return new QRadioButton(parent);
    case CheckBox:
        return new QCheckBox(parent);
    case Frame:
        return new QFrame(parent);
    case GroupBox:
        return new QGroupBox(parent);
    case LineEdit:
        return new QLineEdit(parent);
    case Lcd:
        return new QLCDNumber(parent);
    case Table:
        return new QTableWidget(parent);
    case TabWidget:
        return new QTabWidget(parent);
    case FontComboBox:
        return new QFontComboBox(parent);
    case Slider:
        return new QSlider(Qt::Horizontal, parent);
    case Widget:
        break;
    case SpinBox:
        return new QSpinBox(parent);
    }
    return new QWidget(parent);
}

void applyRow(QWidget *widget, const WidgetRow &row)
{
    widget->setObjectName(QString::fromLatin1(row.name));
    widget->setGeometry(row.x, row.y, row.w, row.h);
    const QString text = QString::fromUtf8(row.text);
    if (*row.style)
        widget->setStyleSheet(QString::fromUtf8(row.style));
    if (*row.toolTip)
        widget->setToolTip(QString::fromUtf8(row.toolTip));

    if (auto *label = qobject_cast<QLabel *>(widget)) {
        label->setText(text);
        if (row.flags & Center)
            label->setAlignment(Qt::AlignCenter);
        else if (row.flags & TopRight)
            label->setAlignment(Qt::AlignRight | Qt::AlignTop);
        else if (row.flags & BottomRight)
            label->setAlignment(Qt::AlignRight | Qt::AlignBottom);
        else if (row.flags & TopLeft)
            label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label->setScaledContents(row.flags & ScaledContents);
    } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        button->setText(text);
        button->setCheckable(button->isCheckable() || (row.flags & Checkable));
        button->setChecked(row.flags & Checked);
        button->setFocusPolicy(Qt::NoFocus);
    } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
        edit->setAlignment(Qt::AlignCenter);
        edit->setFocusPolicy(Qt::NoFocus);
    } else if (auto *lcd = qobject_cast<QLCDNumber *>(widget)) {
        lcd->setDigitCount(3);
        lcd->setSegmentStyle(QLCDNumber::Filled);
    } else if (auto *tabs = qobject_cast<QTabWidget *>(widget)) {
        tabs->setFocusPolicy(Qt::NoFocus);
    } else if (auto *fonts = qobject_cast<QFontComboBox *>(widget)) {
        fonts->setEditable(false);
        fonts->setMaxVisibleItems(15);
    } else if (auto *slider = qobject_cast<QSlider *>(widget)) {
        // Keys belong to the game, never to a slider. A row may give the range and start as
        // "minimum maximum value"; without it the code that owns the slider sets them.
        const QStringList range = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (row.h > row.w)
            slider->setOrientation(Qt::Vertical);
        if (range.size() == 3) {
            slider->setRange(range.value(0).toInt(), range.value(1).toInt());
            slider->setValue(range.value(2).toInt());
            slider->setPageStep(1);
            slider->setTickPosition(QSlider::TicksBelow);
        }
        slider->setFocusPolicy(Qt::NoFocus);
    } else if (auto *table = qobject_cast<QTableWidget *>(widget)) {
        table->setColumnCount(2);
        table->setRowCount(100);
        table->setFocusPolicy(Qt::NoFocus);
        for (const GameCaption &caption : gameCaptions)
            table->setItem(caption.row, 0, new QTableWidgetItem(QString::fromUtf8(caption.text)));
    }
    if (row.flags & Disabled)
        widget->setEnabled(false);
    if (row.flags & Hidden)
        widget->setVisible(false);
}

QLabel *keyLabel(QWidget *parent, const QString &name, const QRect &rect, const QString &text = {},
    Qt::Alignment alignment = {})
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setGeometry(rect);
    label->setMouseTracking(true);
    if (alignment)
        label->setAlignment(alignment);
    return label;
}

QRect paintKeyRect(int number)
{
    if (number <= characterKeyCount)
        return keyRect(number);
    const ControlKey &key = controlKeyByNumber(number);
    return QRect(key.x, key.y, key.w, key.h);
}

QRect pulseRect(int number)
{
    if (number <= characterKeyCount) {
        const CharacterKey &key = characterKey(number);
        return QRect(key.pulseX, key.pulseY, 96, 96);
    }
    const ControlKey &key = controlKeyByNumber(number);
    return QRect(key.pulseX, key.pulseY, 96, 96);
}

QString keyLetterRule(int n)
{
    const char *size = (n == 55) ? "16pt" : (n <= 33 && n != 22) ? "14pt" : "13.5pt";
    return QStringLiteral(
        "QLabel#r%1_2 { background-color: transparent; font: %2 \"arial unicode ms\"; }\n")
        .arg(n)
        .arg(QLatin1String(size));
}

} // namespace

QString lexoriaWindowStyleSheet()
{
    static const char *roundedFrames[] = {
        "frameFonts",
        "frameVorticKeyboard",
        "tableOfContents",
        "frameShadows",
        "frameFinishedImages",
        "frameFade",
        "framePhotos",
        "frameGamePlayS",
        "frameGamePlayS_2",
        "frameGamePlayCM",
        "frameHideBg",
        "frameKeyShape",
        "frame_29",
        "frame_30",
        "frame_32",
        "frame_33",
        "frame_34",
        "frame_35",
        "frame_10",
        "frameAudio",
        "frameLinehighlight",
    };
    QString sheet;
    for (const char *frame : roundedFrames)
        sheet += QStringLiteral("QFrame#%1{  border-radius:  15px;  border:1px solid black;}\n")
                     .arg(QLatin1String(frame));
    sheet += "QTabWidget#tabWidget{  border-radius:  15px;  border:1px solid black;}\n";
    sheet
        += "QLabel { font-size: 20px; background-color: transparent; color: white; "
           "border-width: 1px; border-color: black; border-radius: 10px; font-family: Calibri; }\n";
    sheet += "QLabel#wallpaper{ border:none; border-radius: 0px; }\n";
    for (const char *heading :
        {"rEverything", "rUppercase", "rLowercase", "rNumberLinePlus", "rVowels"})
        sheet += QStringLiteral(
            "QLabel#%1{ color: blue; font: 10.5pt \"MS Shell Dlg 2\"; font-weight: bold; }\n")
                     .arg(QLatin1String(heading));
    for (const char *group : {"All", "Consonants", "Various", "NumberLine", "Vowels_2"}) {
        sheet += QStringLiteral("QPushButton#pbForward%1{ font: 18pt \"Wingdings 3\"; }\n"
                                "QPushButton#pbReverse%1{ font: 18pt \"Wingdings 3\"; }\n"
                                "QPushButton#pbRandom%1{ font: 16pt \"Webdings \"; }\n")
                     .arg(QLatin1String(group));
    }
    sheet += "QPushButton{ text-align: center; font: 9pt \"MS Shell Dlg 2\"; }\n";
    for (const char *field :
        {"QLineEdit#leMatch", "QLineEdit#leUser", "QLabel#labelCorrect", "QLabel#labelIncorrect"})
        sheet += QStringLiteral(
            "%1{ border: 2px solid grey; background-color: white; color: black; }\n")
                     .arg(QLatin1String(field));
    for (int k = 1; k <= characterKeyCount; ++k)
        sheet += QStringLiteral("QLabel#bg%1{ background-color: black; }\n").arg(k);
    for (int n = 1; n <= letterCount; ++n) {
        sheet += QStringLiteral(
            "QLabel#r%1 { background-color: transparent; color: rgb(255, 255, 255); "
            "font: 13.5pt \"arial unicode ms\"; }\n")
                     .arg(n);
        sheet += keyLetterRule(n);
    }
    for (int k = 1; k <= characterKeyCount; ++k)
        sheet += QStringLiteral("QLabel#r%1_3 { background-color: transparent; }\n").arg(k);
    sheet += "QLabel#rcRussian, QLabel#rc11, QLabel#rcEnglish { background-color: black; "
             "font: 10pt \"arial unicode ms\"; }\n";
    sheet += "QLabel#rcBoth { font: 10pt \"arial unicode ms\"; }\n";
    for (int f = 1; f <= 19; ++f)
        sheet += QStringLiteral("QLabel#f%1{ color:#6e6e6e; }\n").arg(f);
    return sheet;
}

namespace Ui {

void lexoria::setupUi(QMainWindow *window)
{
    window->setObjectName(QStringLiteral("lexoria"));
    window->setWindowTitle(QStringLiteral("Vortic-Typing: Russian"));
    window->resize(1211, 695);
    window->setAutoFillBackground(true);

    // Set before any child exists, so that Qt does not walk hundreds of children to restyle them.
    window->setStyleSheet(lexoriaWindowStyleSheet());
    centralWidget = new QWidget(window);
    centralWidget->setObjectName(QStringLiteral("centralWidget"));
    buildTable(centralWidget);
    buildAlphabetBar(centralWidget);
    buildKeyboard(centralWidget);
    window->setCentralWidget(centralWidget);
    bindNamedWidgets();
}

void lexoria::buildTable(QWidget *central)
{
    struct Table
    {
        const WidgetRow *rows;
        std::size_t count;
    };
    std::size_t gradientRowCount = 0;
    const Table tables[] = {
        {mainFormRows, mainFormRowCount},
        {aidFormRows, aidFormRowCount},
        {optionsFormRows, optionsFormRowCount},
        {audioFormRows, audioFormRowCount},
        {demoFormRows, demoFormRowCount},
        {effectsFormRows, effectsFormRowCount},
        {progressFormRows, progressFormRowCount},
        // Gradients
        {gradientFormRows(&gradientRowCount), gradientRowCount},
        // Shadows
        {shadowFormRows(), shadowFormRowCount()},
        // Colour pickers
        {pickerFormRows, pickerFormRowCount},
        // Pictures
        {picturesFormRows, picturesFormRowCount},
        // Rainbow
        {rainbowFormRows, rainbowFormRowCount},
        // Borders
        {borderFormRows, borderFormRowCount},
        // Keyboard theme file
        {themeFileFormRows, themeFileFormRowCount},
    };
    QList<std::pair<QWidget *, const WidgetRow *>> waiting;
    for (const Table &table : tables) {
        for (std::size_t i = 0; i < table.count; ++i) {
            const WidgetRow &row = table.rows[i];
            QWidget *parent = row.parent ? byName.value(QString::fromLatin1(row.parent)) : central;
            QWidget *widget = makeWidget(row.kind, parent ? parent : central);
            applyRow(widget, row);
            if (auto *tabs = qobject_cast<QTabWidget *>(parent))
                tabs->addTab(widget, QString::fromUtf8(row.text));
            if (!parent) {
                widget->hide();
                waiting.append({widget, &row});
            }
            byName.insert(widget->objectName(), widget);
        }
    }
    for (const auto &[widget, row] : qAsConst(waiting)) {
        if (QWidget *parent = byName.value(QString::fromLatin1(row->parent))) {
            widget->setParent(parent);
            widget->setGeometry(row->x, row->y, row->w, row->h);
            widget->setVisible(!(row->flags & Hidden));
        }
    }
}

void lexoria::buildAlphabetBar(QWidget *central)
{
    for (int n = 1; n <= letterCount; ++n) {
        const QRect cell = barRect(n);
        QLabel *background = keyLabel(central, QStringLiteral("r%1bg").arg(n), cell);
        background->setStyleSheet(QStringLiteral("background-color: black;"));
        QLabel *letter = keyLabel(central, QStringLiteral("r%1").arg(n), cell, letterText(n),
            Qt::AlignHCenter | Qt::AlignBottom);
        letter->setMargin(barMargin(n));
        byName.insert(background->objectName(), background);
        byName.insert(letter->objectName(), letter);
    }
}

// Creation order is stacking order: faces, images, letters, pulses, covers, shields.
void lexoria::buildKeyboard(QWidget *central)
{
    auto add = [this](QLabel *label) { byName.insert(label->objectName(), label); };

    for (const char *layer : {"bg", "img"}) {
        for (int k = 1; k <= characterKeyCount; ++k)
            add(keyLabel(
                central, QStringLiteral("%1%2").arg(QLatin1String(layer)).arg(k), keyRect(k)));
        for (const ControlKey &key : controlKeys)
            add(keyLabel(central, QLatin1String(layer) + QLatin1String(key.suffix),
                QRect(key.x, key.y, key.w, key.h)));
    }
    for (int n = 1; n <= letterCount; ++n) {
        const Qt::Alignment rowAlignment = isUpperRow(n) ? Qt::AlignTop : Qt::AlignBottom;
        add(keyLabel(central, QStringLiteral("r%1_2").arg(n), keyLetterRect(n), keyLetterText(n),
            Qt::AlignRight | Qt::AlignTrailing | rowAlignment));
    }
    for (int k = 1; k <= characterKeyCount; ++k)
        add(keyLabel(central, QStringLiteral("r%1_3").arg(k), keyRect(k), keyEnglishText(k),
            Qt::AlignLeft | Qt::AlignTop));
    for (const ControlKey &key : controlKeys)
        add(keyLabel(central, QLatin1String("label") + QLatin1String(key.suffix),
            QRect(key.x, key.y, key.w, key.h), QString::fromLatin1(key.caption),
            Qt::AlignLeft | Qt::AlignTop));
    add(keyLabel(central, QStringLiteral("underscore_left"), keyRect(6), QStringLiteral(" _"),
        Qt::AlignHCenter | Qt::AlignBottom));
    add(keyLabel(central, QStringLiteral("underscore_right"), keyRect(10), QStringLiteral("_ "),
        Qt::AlignHCenter | Qt::AlignBottom));
    for (int number = 1; number <= paintKeyCount; ++number) {
        QLabel *pulse
            = keyLabel(central, QStringLiteral("pulsate%1").arg(number), pulseRect(number));
        pulse->setStyleSheet(QStringLiteral("background-color: transparent;"));
        add(pulse);
    }
    for (int number = 1; number <= paintKeyCount; ++number) {
        QLabel *cover
            = keyLabel(central, QStringLiteral("displayNone%1").arg(number), paintKeyRect(number));
        cover->setStyleSheet(QStringLiteral("background-color: rgb(0, 0, 0);"));
        add(cover);
    }
    for (int k = 1; k <= characterKeyCount; ++k) {
        QLabel *shield = keyLabel(central, QStringLiteral("shield%1").arg(k), keyRect(k));
        shield->setStyleSheet(QStringLiteral("background-color:  transparent;"));
        add(shield);
    }
}

void lexoria::bindNamedWidgets()
{
#define LEXORIA_BIND_WIDGET(Class, name) name = find<Class>(QStringLiteral(#name));
    LEXORIA_NAMED_WIDGETS(LEXORIA_BIND_WIDGET)
#undef LEXORIA_BIND_WIDGET
}

} // namespace Ui
