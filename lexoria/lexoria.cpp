#include "lexoria/lexoria.h"

#include "lexoria/fonts.h"
#include "lexoria/form.h"
#include "lexoria/gamecatalogue.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"
#include "lexoria/soundbank.h"
#include "windows/aboutwindow.h"
#include "windows/exploreworld.h"
#include "windows/instructions.h"
#include "windows/openingwindow.h"
#include "windows/selfexplore.h"
#include "windows/ui_aboutwindow.h"
#include "windows/ui_exploreworld.h"
#include "windows/ui_instructions.h"
#include "windows/ui_openingwindow.h"
#include "windows/ui_selfexplore.h"

#include <QCloseEvent>
#include <QColorDialog>
#include <QCoreApplication>
#include <QFileDialog>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTableWidget>

#include <iterator>

static void registerResources()
{
    Q_INIT_RESOURCE(resources);
}

void lexoria::initResources()
{
    registerResources();
}

lexoria::lexoria(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::lexoria)
{
    initResources();
    // Before the form, so that no widget is ever laid out in a font it will not keep.
    fonts::mapFormFamilies();
    ui->setupUi(this);
    setFixedSize(size());

    ui->rbForward_2->setChecked(true);
    fillLetterList();
    fillLabelList();
    ui->labelOptions->lower();
    ui->labelScoreboard->lower();
    fillBgList();
    fillShieldList();
    installHoverFilter();

    connect(ui->pbQuit, &QPushButton::clicked, this, &QWidget::close);
    connectGameControls();
    connect(ui->helpButton, &QPushButton::clicked, this, &lexoria::showOW);

    createSecondaryWindows();
    setUpStatistics();
    ui->display3->show();
    connect(ui->buttonInstructionsRight, &QPushButton::clicked, this, &lexoria::hideInsRight);
    connect(ui->buttonInstructionsLeft, &QPushButton::clicked, this, &lexoria::hideInsLeft);
    ui->buttonInstructionsRight->raise();
    ui->buttonInstructionsLeft->raise();
    ui->wordList->hide();

    ui->rbAll->setChecked(true);
    gameIs(gamecatalogue::Everything);
    ui->typeOfGame->setText(ui->table->item(4, 0)->text());
    makeDirection(gamecatalogue::Forward);
    for (int game = 0; game < int(std::size(gamecatalogue::games)); ++game) {
        auto *button = ui->find<QPushButton>(QLatin1String(gamecatalogue::games[game].button));
        connect(button, &QPushButton::clicked, this, [this, game] {
            selectGame(game);
            set_dem_Text();
            set_dem_StyleSheet();
        });
    }
    for (QWidget *hidden : std::initializer_list<QWidget *> {
             ui->rbAll, ui->rbConsonants, ui->groupBox, ui->gbPushButtons, ui->letCharBoth})
        hidden->hide();
    animationOn_function();
    isKeyPressedAll();

    ui->display3->raise();
    hideShields();
    ui->letterOfAlphabet2->raise();
    for (QLabel *banner :
        {ui->circleFour, ui->circleOne, ui->circleThree, ui->circleTwo, ui->piclabel1})
        banner->lower();
    connect(ui->animationOff, &QPushButton::clicked, this, &lexoria::animationOff_function);
    connect(ui->animationOn, &QPushButton::clicked, this, &lexoria::animationOn_function);
    for (QLabel *shield :
        {ui->shieldConsonants, ui->shieldVarious, ui->shieldNumberLine, ui->shieldStart})
        shield->raise();
    connectOptions();

    // Faces under pictures under letters: lowering in list order leaves the faces lowest.
    fillImgArray();
    for (QLabel *image : qAsConst(keyImgLabels))
        image->lower();
    for (QLabel *face : qAsConst(keyBgLabels))
        face->lower();

    hideFrame();
    ui->widget(QStringLiteral("framePhotos"))->hide();
    makeFusion();
    setUpDemonstration();

    connect(ui->aKeysMap, &QPushButton::clicked, this, &lexoria::aKeysMap_function);
    setUpPickerSwatches();

    const QIcon flag(QStringLiteral(":/new/prefix1/russianFlag.gif"));
    setWindowIcon(flag);
    openingWin->setWindowIcon(flag);

    connect(ui->on, &QRadioButton::clicked, this, &lexoria::startCounter);
    connect(ui->off, &QRadioButton::clicked, this, &lexoria::stopCounter);

    colorMadnessTabsShadow();
    loadDisplayNoneArray();
    loadMovieArray();
    connectEffectsPanel();
    connectPictures();
    loadGifs();
    displayBoth();
    // The control keys and the sample key carry no letter, so no restore ever paints them;
    // they take the rest look of the keys once here.
    const QString restFace = pieces.keyRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle;
    for (int k = keycatalogue::characterKeyCount; k < keycatalogue::paintKeyCount; ++k)
        restyle(keyBgLabels[k], restFace);
    restyle(ui->aKeysMap5, restFace);

    setUpAids();
    setUpSound();
    setUpGradients();
    setUpShadows();
    setUpFontsAndShape();
    // Rainbow: every paint slot starts as the general colour of its layer.
    setUpRainbow();
    setUpBorders();
    setUpKeyboardTheme();

    restyle(
        ui->wallpaper, QStringLiteral("background-color: white; border:none; border-radius: 0px;"));
    ui->wallpaper->lower();

    // Every widget made above has queued a polish request. Served now, they would style the
    // whole hidden main window before the opening window can paint; a widget is polished
    // anyway when it is first shown.
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
}

lexoria::~lexoria()
{
    // The pickers have no parent; none of them may call back into a window being destroyed.
    for (std::unique_ptr<QColorDialog> &dialog : colorDialogs) {
        if (dialog)
            dialog->disconnect(this);
        dialog.reset();
    }
    delete ui;
}

void lexoria::createSecondaryWindows()
{
    openingWin = new openingWindow(this);
    openingWin->show();

    // The reading windows are made when the player first asks for one: nobody sees them
    // at start-up, and making them would delay the opening window.
    auto opens = [this](QPushButton *button, auto window) {
        connect(button, &QPushButton::clicked, this, [this, window] {
            createReadingWindows();
            QMainWindow *reading = window();
            reading->show();
            openingWin->lower();
            reading->raise();
        });
    };
    opens(openingWin->ui->openInstructions, [this]() -> QMainWindow * { return instructionsWin; });
    opens(
        openingWin->ui->owInstructionsForSE, [this]() -> QMainWindow * { return selfExploreWin; });
    opens(openingWin->ui->owExploreTheWorld, [this]() -> QMainWindow * { return exploreWorldWin; });
    opens(openingWin->ui->owAboutButton, [this]() -> QMainWindow * { return aboutWin; });

    connect(openingWin->ui->startLearnRussianTyping, &QPushButton::clicked, this,
        &lexoria::openLexoria);
    connect(openingWin->ui->startLearnRussianTyping, &QPushButton::clicked, openingWin,
        &QWidget::close);
    connect(openingWin->ui->owExitPushButton, &QPushButton::clicked, openingWin, &QWidget::close);
}

void lexoria::createReadingWindows()
{
    if (instructionsWin)
        return;
    instructionsWin = new instructions(this);
    selfExploreWin = new selfExplore(this);
    exploreWorldWin = new exploreWorld(this);
    aboutWin = new aboutWindow(this);

    connect(
        instructionsWin->ui->mgExitButton, &QPushButton::clicked, instructionsWin, &QWidget::hide);
    // Hiding and showing the opening window again brings it back to the front.
    auto closesToFront = [this](QPushButton *button, QMainWindow *window) {
        connect(button, &QPushButton::clicked, window, &QWidget::hide);
        connect(button, &QPushButton::clicked, openingWin, &QWidget::hide);
        connect(button, &QPushButton::clicked, openingWin, &QWidget::show);
    };
    closesToFront(selfExploreWin->ui->seExitbutton, selfExploreWin);
    closesToFront(exploreWorldWin->ui->etwExitButton, exploreWorldWin);
    closesToFront(aboutWin->ui->awExitButton, aboutWin);

    const Qt::WindowFlags readingFlags = Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint;
    // This window's sheet paints every label's text white for the dark keyboard; as children the
    // reading windows would inherit that on their light pages, so their labels default to dark.
    for (QMainWindow *window : readingWindows()) {
        window->setWindowFlags(readingFlags);
        window->setStyleSheet(QStringLiteral("QLabel { color: black; }"));
    }
    instructionsWin->setWindowIcon(QIcon(QStringLiteral(":/new/prefix1/russianFlag.gif")));
}

QList<QMainWindow *> lexoria::readingWindows() const
{
    if (!instructionsWin)
        return {};
    return {instructionsWin, selfExploreWin, exploreWorldWin, aboutWin};
}

void lexoria::openLexoria()
{
    show();
    centerMainWindow();
    for (QMainWindow *window : readingWindows())
        window->close();
    demo();
}

void lexoria::showOW()
{
    openingWin->show();
}

void lexoria::centerMainWindow()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    QRect frame = frameGeometry();
    frame.moveCenter(screen->availableGeometry().center());
    move(frame.topLeft());
}

void lexoria::closeEvent(QCloseEvent *event)
{
    // An open picker is a window of its own and would keep the program running.
    closePickers();
    event->accept();
}

void lexoria::setFileAsker(FileAsker asker)
{
    fileAsker = std::move(asker);
}

// One dialog for every kind of question: Qt's own getOpenFileName and getSaveFileName build
// the same dialog from the same arguments.
QStringList lexoria::askFiles(const FileQuestion &question)
{
    if (fileAsker)
        return fileAsker(question);
    static constexpr QFileDialog::FileMode modes[] = {QFileDialog::AnyFile,
        QFileDialog::ExistingFile, QFileDialog::AnyFile, QFileDialog::ExistingFiles};
    QFileDialog dialog(this, question.caption, question.path, question.filter);
    dialog.setFileMode(modes[question.kind]);
    if (question.kind == FileQuestion::Save)
        dialog.setAcceptMode(QFileDialog::AcceptSave);
    if (dialog.exec() == QDialog::Accepted)
        return dialog.selectedFiles();
    return {};
}
