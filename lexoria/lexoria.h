#ifndef LEXORIA_H
#define LEXORIA_H

#include "lexoria/colortargets.h"
#include "lexoria/keyboardtheme.h"
#include "lexoria/optionscatalogue.h"
#include "lexoria/painttheme.h"
#include "lexoria/stylepieces.h"

#include <QElapsedTimer>
#include <QHash>
#include <QList>
#include <QMainWindow>
#include <QMovie>
#include <QPixmap>
#include <QPointer>
#include <QStringList>

#include <array>
#include <cstddef>
#include <functional>
#include <memory>

class QColor;
class QPointF;
class QColorDialog;
class QLabel;
class QPropertyAnimation;
class QRadioButton;
class QPushButton;
class aboutWindow;
class exploreWorld;
class instructions;
class openingWindow;
class selfExplore;

namespace Ui {
class lexoria;
}

namespace sound {
class SoundBank;
}

namespace stats {
class ProgressWindow;
class Recorder;
}

class lexoria : public QMainWindow
{
    Q_OBJECT

public:
    explicit lexoria(QWidget *parent = nullptr);
    ~lexoria() override;

    // The resources live in a static library, so whoever shows a picture first registers them.
    static void initResources();

    Ui::lexoria *ui;

    // Every judged entry goes here; tests point it at a file of their own.
    stats::Recorder *statistics() const { return progress.recorder; }

public slots:
    void openLexoria();
    void showOW();
    void centerMainWindow();

    // The on-screen keyboard (letter number n 1..94)
    void key(int n);
    void changeColorBack(int n);
    void allChangeColorBack();
    void clearFocusEverywhere();
    void numToString();
    void letterOAlphabet();
    void letterOAlphabetNone();
    void phantomLablesShow();
    void phantomLablesHide();
    void displayNone();
    void displayLexoria();
    void displayEnglish();
    void displayBoth();
    void aKeysMap_function();
    void hideInsLeft();
    void hideInsRight();

    // Choosing a game and the alphabet bar's wave
    void selectGame(int game);
    void makeDirection(int direction);
    void gameIs(int group);
    void matchGameChooser();
    void labelAnimate(int n);
    void showShields();
    void hideShields();
    void animationOn_function();
    void animationOff_function();
    void set_dem_Text();
    void set_dem_StyleSheet();

    // Playing: start, stop, judging and the end of a game
    void matchGameEnable();
    void matchGameDisable();
    void changeDifficultySoft();
    void changeDifficultyStrict();
    void forwardMG();
    void reverseMG();
    void forwardIsKeyPressed();
    void reverseIsKeyPressed();
    void forwardIsKeyPressed_CSS();
    void reverseIsKeyPressed_CSS();
    void isKeyPressedAll();
    void clearUser();
    void set_Match_StyleSheet();
    void set_Match_StyleSheet_italic();
    void set_User_StyleSheet_Uppercase();
    void set_User_StyleSheet_Lowercase();
    void set_User_StyleSheet();

    // Scoreboard, clock and the instructor
    void clears();
    void startCounter();
    void stopCounter();
    void instructorComment();
    void wouldYouLikeToPlayAgain();
    void clearGoodJob();

    // Help while playing: the gold highlight, the guide lines, the hint, the instructor's stir
    void setGoldHigh();
    void goldHighOn();
    void goldHighOff();
    void keyGoldHigh(int n);
    void killGoldHighForGoodAtEnd();
    void setLineHigh();
    void lineHighOn();
    void lineHighOff();
    void lineHighOptions_function();
    void lineHighlightLower();
    void lineHighlightRaise();
    void fillLinehighlightH();
    void fillLinehighlightV();
    void hint2();
    void boolFlag2();
    void killChebTimer();
    void cheb0();
    void cheb1();
    void cheb2();

    // The random game
    void randomMG();
    void randomFlags();

    // The advanced options menu and its panels (panel: optionscatalogue::Panel, tab 1..10)
    void showFrame();
    void hideFrame();
    void tocFlagTrue();
    void masterAnimateIn();
    void masterAnimateOut();
    void masterOptionsTextIn();
    void masterOptionsTextOut();
    void showPanel(int panel);
    void hidePanel(int panel);
    void selectColorMadnessTab(int tab);
    void colorMadnessTabClicked();
    void hoverColorMadnessTab(int tab, bool entered);
    void colorMadnessTabsShadow();
    void hideNonVitals_function();
    void xNonVitalsOn_function();
    void xNonVitalsOff_function();
    void xNonVitalsOn2_function();
    void xNonVitalsOff2_function();
    void xNonVitalsOnPhotos_function();
    void xNonVitalsOffPhotos_function();
    void bridgeTop_function();
    void bridgeBottom_function();
    void makeFusion();
    // What a located key does: the effects panel, pulses and explosions (k key, N 1..54)
    void gameOn();
    void gameOnRandom();
    void startGraphicsEffects();
    void stopAllMovies();
    void clearMovies();
    void clearFade();
    void fadeOut_function();
    void fadeInOut_function();
    void explosionOff();
    void explosionHidePulse(int n);
    void hidePulseShowKey_Ran(int k);
    void playPulse(int N);
    void hidePulseShowKey(int N);
    void explosionOther(int N);
    void explosionHidePulseOther(int N);
    void endGame1_66();
    void endGame67_94();
    void endGame94_67();
    void gameAllIn();
    void whatAMess();
    void move_1_33_back();
    void move_numberline_back();
    void move_42_47_back();

    // Fades of a located key and the waves that bring keys back (N 1..47 keys, 48..54 controls)
    void fadeOut(int N);
    void fadeIn(int N);
    void fadeInShadow(int N);
    void allFadeIn();
    void allFadeInReverse();
    void fadeAll();
    void fadeAllReverse();
    void fadeOutReset();
    void shadow3dpart2();
    void shadow3dOnFalse_function();
    void startFade();
    void stopFade();
    void fadeOutExample();
    void fadeInExample();

    // The gifs: effect choice, upload, and the supplied pictures for keys
    void loadGifs();
    void loadMovieArray();
    void finishedAngryE();
    void finishedBirdsDancing();
    void finishedButterfly();
    void finishedExplosion();
    void finishedUploaded();
    void openImageFinished_Function();
    void clearVorticKeyboardImage_function();
    void setMovieSpeed();
    void normalSizeEK_function();
    void setToFitEK_function();
    void loadVorticKeyboardGame();
    void movie(int N);
    void movieNone_function();
    void clearKeysImage_function();
    void clearKeypressImage_function();
    void clearHighlightImage_function();
    void clearMouseoverImage_function();
    // Sound: every sound of the program goes through playSound
    void playSound(const QString &path);
    void playPulseSound();
    void audio();
    void audioUploadedAudio();
    void audioUploadedAudioPulse();
    void openAudio_Function();
    void openAudioPulse_Function();
    void applyAudioToPulse_function();

signals:
    // The path of every sound asked for, silence and the empty "None" included.
    void soundPlayed(const QString &file);

public:
    // The sound a pulse plays once the gif of the given radio is chosen.
    QString pulseSoundForGif(const QString &gifRadio) const;

    // The guided tour of the banner's steps, until a game starts or the window is cleared
    void demo();
    void arrowShow();
    void hideDemo();

    // Color Madness. Gradient targets are numbered 1..8 and 27 (keys, keypress, mouseover,
    // highlight, finished, line highlight, wallpaper, rainbow, game play).
    void grad(int target);
    void gradMain(int target);
    void bgColorLoops();
    void bgColorLoops2();
    void bgColorLoops5();
    void allRise();
    void enableColor(int picker);
    void fillRainbowE();
    void fillRainbowUp();
    void fillRainbowLow();
    void fillRainbowBg();
    void fillRainbowBorder();
    void shadowThClear();
    void akoKeysEng_26(const QColor &color);
    void newColor26(const QColor &color);
    void ako30(const QColor &color);
    void newColor30(const QColor &color);
    // Gradients: the controls of a target's panel (target 1..8, 27)
    void slider_function(int target, int value);
    void swapFlag_function(int target);
    void swapGradient_function(int target);
    void chooseShape(int target, int shape);
    void shapeThumbnailClicked();
    void gamePlayCb_function();
    void startPulsate();
    void stopPulsate();
    // Shadows (group: shadowtables::Group, theme 1..4)
    void shadowGroup_function(int group);
    void shadowTh(int theme);
    void matchThisCb_function();
    void yourEntryCb_function();
    void shadowCornerClicked();
    // Fonts (kind: English, Russian upper case, Russian lower case) and the key shape
    enum FontKind { EnglishFont, UpperFont, LowerFont };
    void newFont(int kind);
    void makeCircle(int);
    void styleSheetExtended();
    // Borders. Width controls are numbered 1, 2, 3, 4, 5 (wallpaper), 8 and 27; the side slots
    // take the gradient target (1, 2, 3, 4, 7, 27); themes are 1..3.
    void sliderBorderWidth_function(int control, int value);
    void sliderBorderWidth1_loops();
    void background_function(int target);
    void border_function(int target);
    void theme_Border_function(int theme);
    void theme_Background_function(int theme);
    void chooseTheme(int theme);
    bool painting() const
    {
        return pickerState.paintingWithBase || pickerState.paintingWithGradient;
    }
    // Colour pickers (N 1..30): each is made on its first opening, with its wiring and place.
    QColorDialog *picker(int N);
    void closePickers(int except = 0);

private:
    // The tests read the colours the pickers write, which nothing shows until a key needs them.
    friend class tst_Pickers;
    struct PickerRow;
    enum class BaseRule { Full, PlainTopOnly, ByShape };
    // The four colours of one side of a target, wherever the target keeps them.
    struct ColourSet
    {
        QString *color;
        QString *gradColor;
        QString *radialColor;
        QString *radialGradColor;
    };
    static const PickerRow &pickerRow(int N);
    void applyLiveColour(int N);
    void pickerAcceptedBy(int N);
    void pickerRejectedBy(int N);
    void openPickerUnderMouse();
    void setUpPickerSwatches();
    void turnPaintOn(bool withBorder);
    // A button missing from this build counts as whenMissing, as does a row without one.
    bool radioChecked(const char *name, bool whenMissing = false) const;
    QList<ColourSet> selectedSides(int target);
    bool &gradOpened(int target);
    void baseColour(int target, const QColor &color, BaseRule rule);
    void topColour(int target, const QColor &color);
    void topFromBase(int target, bool radialToo);
    void restyleKeysAtRest(bool finishedToo = false);
    void restyleSample(int sample, int parts);
    void stepListA();
    void stepListB();
    void textColourOfGamePlay(const QColor &color, const char *lead);
    std::array<std::unique_ptr<QColorDialog>, 31> colorDialogs;
    std::array<QColor, 31> savedColors;
    std::array<QColor, 31> liveColors;
    std::array<bool, 31> livePending {};

public:
    // The keyboard theme file
    void saveKeyboard_Function();
    void openKeyboard_Function();
    void loadKeyboard();

private:
    // The tests stand in for the colour pickers, which write the targets' colours.
    friend class tst_Gradients;
    void setUpGradients();
    void rebuildSelectedSides(int target, int shape);
    void applyLineHighlight();
    void gamePlayFields();
    void restyleRestingBoard();
    void sampleByPaintFlags();
    void pulsateTick();

    // Animate Gradient swings the game play stop to and fro by the float steps it always took.
    struct Pulsate
    {
        int pulsateTimerId = 0;
        float pulsateStop = 0.0f;
        bool pulsateFalling = false;
    } pulsate;

public:
    // Rainbow: the paint targets and the paint theme file
    void rainbowBackground();
    void rainbowBorder_function();
    void rainbowEnglish();
    void rainbowLowercase();
    void rainbowUppercase();
    void rainbowBackgroundGradient();
    void rainbowBorderGradient_function();
    void savePaint_Function();
    void openPaint_Function();
    void loadPaint1();
    void loadPaint2();
    void loadPaint3();
    // Every file the window asks the user for goes through one question; a test answers in
    // place of the dialog. Pick takes any typed name, as the picture and gif buttons always did.
    struct FileQuestion
    {
        enum Kind { Save, Open, Pick, OpenMany } kind;
        QString caption;
        QString path;
        QString filter;
    };
    // An empty list is a cancelled dialog.
    using FileAsker = std::function<QStringList(const FileQuestion &)>;
    void setFileAsker(FileAsker asker);

public slots:
    // The history of past games
    void showProgress();

    // Pictures behind the letters (targets Keys, Keypress, Highlight, Mouseover) and the
    // wallpaper's picture
    void radioKeys_function();
    void radioKeypress_function();
    void radioHighlight_function();
    void radioMouseover_function();
    void openImageKeys_Function();
    void openImageKeypress_Function();
    void openImageHighlight_Function();
    void openImageMouseover_Function();
    void normalSize_function();
    void setToFit_function();
    void stfOn();
    void stfOff();
    void openImageMain_Function();
    void clearMainImage_function();
    void mainRepeat();
    void mainStretchToFit();
    void mainAlign();
    void xRayVisionPhotos();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void fillLetterList();
    void fillLabelList();
    void fillBgList();
    void fillShieldList();
    void fillImgArray();
    void loadDisplayNoneArray();
    void createSecondaryWindows();
    void createReadingWindows();
    QList<QMainWindow *> readingWindows() const;
    void connectGameControls();
    void judgeEntry();
    void closeEntry(bool forward);
    void finishGame(bool forward);
    void commentOn(int index);
    int currentGroup() const;
    int letterNumberOfText(const QString &text) const;
    QString fieldStyle(bool italic, const QString &font, const QString &colour) const;
    void setUpAids();
    void showLinesOfMatch(bool shown);
    void chebTick();
    bool drawRandomLetter(int modulus);
    void finishRandomGame();
    void setUpStatistics();
    void gameStartedForStatistics();
    void noteEntry(const QString &asked, bool right);
    void statisticsTurnedOff(const QString &reason);

    void connectOptions();
    void slide(int id);
    void openPanel(int panel);
    void paintTabs();
    void setNonVitalsVisible(bool visible, bool withMenu = false, bool withColorMadness = false);
    void connectEffectsPanel();
    void keyLocated(bool random);
    void effectsAtGameStart();
    void effectsBetweenGames();
    void effectsAtGameEnd(bool forward, int group);
    void setKeyLayersVisible(int k, bool visible);
    void restKeyFace(int k);
    void moveKeyImagesBack(const int *keys, std::size_t count);
    void startPulse(int N, int movieIndex);
    void runChain(int chain);
    void chooseEffectGif(int index);
    void setPulseMovies(const QString &file, const QSize &size);
    void clearPictureTarget(int target);
    QString &pictureOn(int target);
    QString &picturePath(int target);
    QMovie *pictureMovie(int target);
    QSize pictureFitSize(int target) const;
    void setPictureFitSize(int target, const QSize &size);
    void connectPictures();
    void selectPictureTarget(int target);
    void openPicture(int target);
    void showPicture(int target, const QSize &size);
    void clearPictureSlot(int target);
    void markPictureTarget(int target, bool ownPicture);
    void resizePictures(bool fit);
    void showWallpaperPicture();
    void pictureControlClicked();
    bool fadeChosen() const;

    void setUpDemonstration();
    void demoStep(int step);
    void stopDemo();
    void showDemoAfterNonVitals();
    void fadeLocatedKey();
    QList<QWidget *> fadeLayers(int N) const;
    void fadeLabels(const QList<QWidget *> &layers, qreal from, qreal to, int ms);
    void laterFade(int N, int ms, bool in);
    void runFadeWave(int fromMs, const int *keys, int count, bool backwards, bool in);
    bool shadowsShown() const;
    void setShadowsShown(bool shown);
    bool keyHasDoneLetter(int k) const;

    void setUpShadows();
    QList<QWidget *> shadedWidgets(int group) const;
    QPointF shadowOffset(int group, QWidget *widget) const;
    void castShadow(QWidget *widget, const QColor &color, const QPointF &offset);
    void castShadowOfGroup(QWidget *widget, int group);
    int faceGroup(const QWidget *face) const;
    void recolourShadows(int first, int last, const QColor &color, bool reapply);
    void applyThemePieces(int theme);
    void setUpFontsAndShape();
    void restyleFontSamples(int kind);
    void restyleFaceSamples();
    void setKeyShape(bool circle);

    void showDisplayMark(const char *mark);
    void showLettersOnKeys(bool russian, bool english);

    // The mouse: hover and clicks are dispatched by the tables of mouse.cpp.
    struct HoverRow;
    struct ClickRow;
    struct HoverTarget
    {
        const HoverRow *row;
        int number;
    };
    static const HoverRow *hoverRows(std::size_t *count);
    static const ClickRow *clickRows(std::size_t *count);
    void installHoverFilter();
    void barHover(int n);
    void keyHover(int k);
    void keyLeave(int k);
    void mouseoverImage(int k);
    void fontComboFocus(const char *name);
    const QString &fontPiece(int n) const;
    const QString &colourPiece(int n) const;
    bool rowPainted(int n) const;

    // Borders
    void setUpBorders();
    void moveSideControls(int target, int shape, int stopPos);
    QString faceAtRest(int index) const;
    void restAllFaces();
    void keysSamples();
    void themeGamePlay();
    bool paintChoice(const char *name) const;
    void paintFace(int K, int index, bool withBar);
    void paintEnglish(int K, int index);
    void paintLetter(int n);
    void paintKey(int k);
    void paintBarCell(int n);
    void paintControl(int K);

    void setUpSound();
    void keyPressSound(int n);
    bool previewSound(QObject *watched, QEvent *event);
    QStringList chooseWaveFiles();

    QStringList letterList;
    QList<QLabel *> barLabels;
    QList<QLabel *> barBgLabels;
    QList<QLabel *> keyLetterLabels;
    QList<QLabel *> keyEnglishLabels;
    QList<QLabel *> keyShields;
    QList<QLabel *> keyBgLabels;
    QList<QLabel *> keyImgLabels;
    QList<QLabel *> keyPulseLabels;
    QList<QLabel *> displayNoneLabels;
    QList<QPixmap> instructorPixmaps;

    StylePieces pieces;
    ColorTargets targets;
    PickerState pickerState;

    // Keys painted one by one keep their own pieces, used while a layer's paint flag is on.
    struct Painted
    {
        bool paintBackgroundOn = false;
        bool paintBorderOn = false;
        bool paintEnglishOn = false;
        bool paintUpperOn = false;
        bool paintLowerOn = false;
        // The flags as the paint theme file writes them, "0" or "1".
        QString paintBackgroundText = QStringLiteral("0");
        QString paintBorderText = QStringLiteral("0");
        QString paintEnglishText = QStringLiteral("0");
        QString paintUpperText = QStringLiteral("0");
        QString paintLowerText = QStringLiteral("0");
        std::array<QString, 95> paintCharColor;
        std::array<QString, 55> paintEnglishColor;
        std::array<QString, 55> paintBgStyle;
        std::array<QString, 55> paintBorderStyle;
        QString paintUnderscoreLeftColor;
        QString paintUnderscoreRightColor;
    } painted;

    // Rainbow
    void setUpRainbow();
    void setUpPaintFile();
    QColorDialog *rainbowPicker(int picker) const;
    void showRainbowSide(bool border);
    void choosePaintTarget(int target);
    void rainbowSwatchClicked(bool gradient);
    void gatherPaintTheme();
    void applyPaintTheme(const painttheme::Theme &theme);
    // The texts of the last paint theme saved or opened: a shape of 0 has no text and keeps
    // the one it had.
    struct PaintFile
    {
        painttheme::Theme texts;
        QString currentThemeName;
        QString lastThemeName;
    } paintFile;
    FileAsker fileAsker;
    QStringList askFiles(const FileQuestion &question);
    QString askFile(const FileQuestion &question) { return askFiles(question).value(0); }

    // Pictures behind the letters of the keys; the "On" flags are "1" or "0", empty counts as off.
    struct Pictures
    {
        QString keysImageOn;
        QString keypressImageOn = QStringLiteral("0");
        QString highlightImageOn = QStringLiteral("0");
        QString mouseoverImageOn;
        QString keysImagePath;
        QString keypressImagePath;
        QString highlightImagePath;
        QString mouseoverImagePath;
        QMovie keysMovie;
        QMovie keypressMovie;
        QMovie highlightMovie;
        QMovie mouseoverMovie;
        // The size a picture fits a key with: a gif's own setting, or the player's picture
        // scaled to 54 wide. "Shrink to Fit" goes back to it after "Normal Size".
        int keysImageWidth = 54;
        int keysImageHeight = 54;
        int keypressImageWidth = 54;
        int keypressImageHeight = 54;
        int highlightImageWidth = 54;
        int highlightImageHeight = 54;
        int mouseoverImageWidth = 54;
        int mouseoverImageHeight = 54;
        QString mainImageOn;
        QString mainImagePath;
        QString wallpaperImageStyle = QStringLiteral("background-image: url();");
        QMovie mainMovie;
    } pictures;

    bool gameRunning = false;
    bool gameCompleted = false;
    int gameLength = 94;
    int correctCount = 0;
    int incorrectCount = 0;
    int forwardIndex = 0;
    int reverseIndex = 93;
    int randomIndex = 0;
    int randomStopCount = 200;
    std::array<bool, 95> randomPulseFlags {};
    int lastKeyIndex = 0;
    std::array<bool, 95> letterDone {};
    bool barAnimationOn = true;
    QString letterNumberText;
    bool insRightShown = true;
    bool insLeftShown = true;
    bool aKeysMapShown = true;

    QHash<const QObject *, HoverTarget> hoverTargets;
    // Bar hover enlarges the letter in its cell and shrinks it a little on its key.
    QString hoverBarFontStyle = " font: 13.5pt; ";
    QString hoverKeyFontStyle = " font: 13.25pt 'arial unicode ms'; ";

    int clockSeconds = 0;
    int clockTimerId = 0;

    bool goldHighActive = false;
    bool lineHighActive = false;
    bool lineOptionsOpen = false;
    bool hintReady = true;
    int chebTimerId = 0;
    int chebTicks = 0;
    QList<QLabel *> horizontalLines;
    QList<QLabel *> verticalLines;

    // The options menu
    bool tocOpen = false;
    optionscatalogue::PanelFlags openPanels;
    std::array<QString, optionscatalogue::tabCount> tabSelected;
    bool nonVitalsHidden = false;
    QList<QPointer<QWidget>> nonVitalsCleared;
    int menuRun = 0; // a shot of an older opening or closing of the menu finds it changed
    std::array<QPointer<QPropertyAnimation>, optionscatalogue::SlideCount> slideRunning;
    QString keypressSound;
    QString pulseSound;
    QString silenceSound;
    QStringList uploadedKeypressFiles;
    QStringList uploadedPulseFiles;
    std::unique_ptr<sound::SoundBank> soundBank;

    bool demoStopped = false; // for good: nothing brings the tour back in this run
    int demoRound = 0;
    std::array<QLabel *, 4> demoBoxes {};
    std::array<QLabel *, 4> demoArrows {};

    int keyFlashMs = 300;
    int barStepMs = 50;
    int randomBarStepMs = 100;
    int entryClearMs = 100;

    // The effect a located key sets off, and the gifs it plays.
    struct Effects
    {
        bool gifEffectOn = false;
        bool fadePlayed = false;
        std::array<QMovie *, 94> pulseMovies {};
        QMovie *uploadedFullMovie = nullptr;
        QMovie *uploadedPreviewMovie = nullptr;
        QString gifPath;
        QStringList uploadedGifFiles;
        int gifSpeed = 100;
        int uploadThumbWidth = 0;
        int uploadThumbHeight = 0;
        int uploadPulseWidth = 0;
        int uploadPulseHeight = 0;
    } effects;
    // What the judges tell the history: the game as it was chosen at Start, and how long the
    // letter on show has been waiting.
    struct Progress
    {
        stats::Recorder *recorder = nullptr;
        stats::ProgressWindow *window = nullptr;
        QPushButton *button = nullptr;
        QElapsedTimer letterShown;
        qint64 gameStartedAt = 0;
        int group = 0;
        int direction = 0;
        bool strict = false;
    } progress;

    // The colour of each shadow group by shadowtables::Group; its check box, slider and dial
    // hold the rest.
    struct Shadows
    {
        std::array<QString, 13> colors;
    } shadows;

    struct Fades
    {
        int fadeInMs = 1000;
        int fadeExampleTimerId = 0;
    } fades;

    // The keyboard theme file: the lines last saved or opened keep what no member holds (the
    // texts of shapes at 0, the spare colours, fonts nobody can show).
    void setUpKeyboardTheme();
    std::array<QString *, keyboardtheme::lineCount + 1> keyboardThemeTexts();
    void gatherKeyboardTheme();
    void applyKeyboardThemeTexts(const keyboardtheme::Theme &theme);
    void restyleKeyboardSamples();
    keyboardtheme::Theme keyboardThemeFile = keyboardtheme::startTheme();
    QString currentThemeName;
    QString lastThemeName;

    openingWindow *openingWin = nullptr;
    instructions *instructionsWin = nullptr;
    selfExplore *selfExploreWin = nullptr;
    exploreWorld *exploreWorldWin = nullptr;
    aboutWindow *aboutWin = nullptr;
};

#endif
