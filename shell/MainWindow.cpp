#include "shell/MainWindow.h"

#include "core/App.h"
#include "core/Icons.h"
#include "core/Widgets.h"
#include "shell/Catalogue.h"
#include "shell/EffectPictures.h"
#include "shell/RenderedPictures.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QEnterEvent>
#include <QFocusFrame>
#include <QMouseEvent>
#include <QPainter>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

namespace {

const char* const Title = "qlTitle";
const char* const Description = "qlDescription";
const char* const FormName = "qlForm";
const QSize PictureSize = CataloguePictureSize;

// The picture of a catalogue button: the one drawn at build time for the
// screen's pixel ratio where there is one, else drawn now.
QPixmap pictureOf(const QString& form, const QString& title, qreal ratio)
{
    for (const RenderedPicture& rendered : renderedPictures()) {
        if (form != QLatin1String(rendered.form) || !qFuzzyCompare(ratio, qreal(rendered.ratio)))
            continue;
        QPixmap picture;
        if (rendered.pixels) {
            const QImage image(reinterpret_cast<const uchar*>(rendered.data), rendered.width, rendered.height,
                               QImage::Format_ARGB32_Premultiplied);
            picture = QPixmap::fromImage(image);
        } else {
            picture.loadFromData(reinterpret_cast<const uchar*>(rendered.data), uint(rendered.size), "PNG");
        }
        if (!picture.isNull()) {
            picture.setDevicePixelRatio(ratio);
            return picture;
        }
    }
    return effectPicture(form, title, PictureSize, ratio);
}

// The ring around the catalogue button that has the keyboard focus.
class FocusRing : public QFocusFrame {
public:
    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(palette().color(QPalette::Highlight), 2));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
    }
};

}  // namespace

MainWindow::MainWindow(App& app)
    : QMainWindow(nullptr)
    , FormBase(app, QStringLiteral("QLMain"))
{
    setObjectName(QStringLiteral("QLMain"));
    setWindowTitle(QStringLiteral("Quillet"));
    // The main window's help is the table of contents.
    helpTopic = 0;

    buildMenus();

    auto* central = new QWidget(this);
    central->setMouseTracking(true);
    central->installEventFilter(this);
    setCentralWidget(central);

    TabStrip1 = named(new QTabBar(central), "TabStrip1");
    TabStrip1->setExpanding(false);
    TabStrip1->setDrawBase(false);
    pages_ = new PageStack(central);
    pages_->setFrameShape(QFrame::StyledPanel);
    const QList<CataloguePage>& pageTable = cataloguePages();
    for (int i = 0; i < pageTable.size(); ++i) {
        TabStrip1->addTab(pageTable[i].caption);
        TabStrip1->setTabToolTip(i, pageTable[i].toolTip);
        pages_->addPage(buildPage(i));
    }
    connect(TabStrip1, &QTabBar::currentChanged, this, [this](int index) {
        if (index >= 0)
            pages_->bringToFront(index);
    });
    // The pictures of a page are drawn when the page first comes to the
    // front, so that the window opens without waiting for the others.
    connect(pages_, &QStackedWidget::currentChanged, this, [this](int index) { paintPictures(index); });

    auto* frame1 = named(new QGroupBox(QStringLiteral("Description"), central), "Frame1");
    frame1->setFixedWidth(240);
    Label3 = named(new QLabel(frame1), "Label3");
    QFont titleFont = Label3->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.15);
    Label3->setFont(titleFont);
    Label3->setWordWrap(true);
    Label2 = named(new QLabel(frame1), "Label2");
    Label2->setWordWrap(true);
    Label2->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* describeLayout = new QVBoxLayout(frame1);
    describeLayout->addWidget(Label3);
    describeLayout->addSpacing(6);
    describeLayout->addWidget(Label2, 1);

    auto* catalogueColumn = new QVBoxLayout;
    catalogueColumn->setSpacing(0);
    catalogueColumn->addWidget(TabStrip1);
    catalogueColumn->addWidget(pages_, 1);

    auto* layout = new QHBoxLayout(central);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(10);
    layout->addLayout(catalogueColumn, 1);
    layout->addWidget(frame1);

    focusFrame_ = new FocusRing(this);
    // Hidden until a button has the focus.
    focusFrame_->hide();
    installEventFilter(this);
}

void MainWindow::buildMenus()
{
    auto addEntry = [this](QMenu* menu, const QString& name, const QString& caption) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        return action;
    };
    auto addMenu = [](QWidget* parent, const QString& name, const QString& caption) {
        auto* menu = new QMenu(caption, parent);
        menu->setObjectName(name);
        return menu;
    };

    QMenu* file = addMenu(this, "mnuFile", "&File");
    QAction* exit = addEntry(file, "mnuFileExit", "E&xit");
    // The desktop's key to quit, Ctrl+Q where it names none.
    const QKeySequence quit(QKeySequence::Quit);
    exit->setShortcut(quit.isEmpty() ? QKeySequence(Qt::CTRL | Qt::Key_Q) : quit);
    connect(exit, &QAction::triggered, this, [this] { app().end(); });

    QMenu* edit = addMenu(this, "mnuEdit", "&Edit");
    connect(addEntry(edit, "mnuEditApplet", "Edit Applet..."), &QAction::triggered, this,
            [this] { app().forms().show(QStringLiteral("EditAppletForm"), true); });

    QMenu* special = addMenu(this, "mnuSpecialEffects", "&Special Effects");
    for (const EffectSubmenu& submenu : effectMenu()) {
        QMenu* sub = addMenu(special, submenu.control, submenu.caption);
        special->addMenu(sub);
        for (const EffectMenuEntry& entry : submenu.entries) {
            const QString form = entry.form;
            const bool unloadFirst = entry.unloadFirst;
            connect(addEntry(sub, entry.control, entry.caption), &QAction::triggered, this,
                    [this, form, unloadFirst] { openEffect(form, unloadFirst); });
        }
    }

    QMenu* view = addMenu(this, "mnuView", "&View");
    connect(addEntry(view, "mnuPreferences", "&Preferences..."), &QAction::triggered, this,
            [this] { app().forms().show(QStringLiteral("Options"), true); });

    QMenu* help = addMenu(this, "mnuHelp", "&Help");
    QAction* contents = addEntry(help, "mnuHelpContents", "&Contents...");
    contents->setShortcut(QKeySequence(Qt::Key_F1));
    connect(contents, &QAction::triggered, this, [this] { sendHelp(); });
    connect(addEntry(help, "mnuHelpAbout", "&About..."), &QAction::triggered, this,
            [this] { app().forms().show(QStringLiteral("About"), true); });

    for (QMenu* menu : {file, edit, special, view, help})
        menuBar()->addMenu(menu);
}

QWidget* MainWindow::buildPage(int page)
{
    auto* container = named(new QWidget, arrayName("Picture1", page));
    container->setMouseTracking(true);
    container->installEventFilter(this);
    auto* grid = new QGridLayout(container);
    grid->setContentsMargins(14, 14, 14, 14);
    grid->setSpacing(10);
    // One group per page: the arrow keys move between its buttons as they
    // stand on the page. Nothing in it is checked.
    auto* group = new QButtonGroup(container);
    group->setExclusive(false);
    int slot = 0;
    for (const CatalogueEntry& entry : catalogue()) {
        if (entry.page != page)
            continue;
        auto* button = named(new QToolButton(container), entry.button);
        button->setIconSize(PictureSize);
        button->setMinimumSize(PictureSize + QSize(8, 8));
        button->setAutoRaise(true);
        button->setAccessibleName(entry.title);
        button->setAccessibleDescription(entry.description);
        button->setProperty(Title, entry.title);
        button->setProperty(Description, entry.description);
        button->setProperty(FormName, entry.form);
        button->setMouseTracking(true);
        button->installEventFilter(this);
        const QString form = entry.form;
        connect(button, &QToolButton::clicked, this, [this, form] { openEffect(form, true); });
        group->addButton(button);
        // Added in reading order, so that Tab walks the page row by row.
        grid->addWidget(button, slot / 3, slot % 3, Qt::AlignCenter);
        ++slot;
    }
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(3, 1);
    return container;
}

void MainWindow::paintPictures(int page)
{
    QWidget* container = pages_->widget(page);
    if (!container || container->property("qlPainted").toBool())
        return;
    container->setProperty("qlPainted", true);
    const qreal dpr = devicePixelRatioF();
    for (QToolButton* button : container->findChildren<QToolButton*>()) {
        const QVariant form = button->property(FormName);
        if (form.isValid())
            button->setIcon(QIcon(pictureOf(form.toString(), button->property(Title).toString(), dpr)));
    }
}

void MainWindow::load()
{
    TabStrip1->setCurrentIndex(0);
    pages_->bringToFront(0);
    paintPictures(0);
    adjustSize();
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect area = screen->availableGeometry();
        move(area.center() - QPoint(width() / 2, height() / 2));
    }
}

void MainWindow::describe(const QString& title, const QString& description)
{
    Label3->setText(title);
    Label2->setText(description);
}

void MainWindow::openEffect(const QString& form, bool unloadFirst)
{
    if (unloadFirst)
        app().forms().reopen(form, true);
    else
        app().forms().show(form, true);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (watched->property(Title).isValid()) {
        // The keyboard has the buttons as the mouse has them: the button with
        // the focus is described and framed, and Enter opens its form as Space
        // and a click do.
        if (type == QEvent::FocusIn) {
            describe(watched->property(Title).toString(), watched->property(Description).toString());
            focusFrame_->setWidget(static_cast<QWidget*>(watched));
        }
        if (type == QEvent::FocusOut) {
            focusFrame_->setWidget(nullptr);
            // Focus gone elsewhere in this window clears the description, as
            // the mouse gone off the buttons does; a window in front keeps it.
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
                describe(QString(), QString());
        }
        if (type == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) && !key->isAutoRepeat() &&
                (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
                static_cast<QToolButton*>(watched)->click();
                return true;
            }
        }
    }
    if (type != QEvent::Enter && type != QEvent::MouseMove)
        return QMainWindow::eventFilter(watched, event);
    // The effect button under the mouse, if any: a move over a button can
    // reach its page too.
    QObject* over = watched;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && !watched->property(Title).isValid()) {
        QPointF position;
        if (type == QEvent::Enter)
            position = static_cast<QEnterEvent*>(event)->position();
        else
            position = static_cast<QMouseEvent*>(event)->position();
        for (QWidget* child = widget->childAt(position.toPoint()); child && child != widget;
             child = child->parentWidget()) {
            if (child->property(Title).isValid()) {
                over = child;
                break;
            }
        }
    }
    const QVariant title = over->property(Title);
    if (title.isValid())
        describe(title.toString(), over->property(Description).toString());
    else
        describe(QString(), QString());
    // A move over a button ends there: its page must not take it as a move
    // over the empty page.
    if (over == watched && title.isValid() && type == QEvent::MouseMove &&
        static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton)
        return true;
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    app().end();
}

}  // namespace ql
