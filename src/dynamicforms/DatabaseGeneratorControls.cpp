// The controls of the designer and where they lie.
#include "dynamicforms/DatabaseGenerator.h"
#include "parts/FieldGrid.h"
#include "platform/desktop/Twips.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;

namespace {

constexpr double windowWidth = 10935; // twips, as are all below
constexpr double windowHeight = 14025;
constexpr double canvasWidth = 10335;
constexpr double canvasHeight = 7095;
constexpr double unselectedStep = 200; // of the arrow keys, while no grid size is selected
constexpr int listedLines = 6;
constexpr int margin = 6; // pixels

} // namespace

DatabaseGenerator::DatabaseGenerator()
    : Form(Place::InFrame, u"DatabaseGenerator"), Toolbar1(new desktop::Toolbar(this, u"Toolbar1")),
      ImageList1(new desktop::ImageList(this, u"ImageList1"))
{
    setDesignCaption(u"Tolmark Database/Form Generator"_s);
    setUpToolbar();
    setUpTableInformation();
    setUpDisplayOptions();
    setUpColumnInformation();
    setUpCanvas();
    setUpLayout();
    setUpHandlers();
    txtTableName->setFocus();
    keepSize(windowWidth, windowHeight);
}

void DatabaseGenerator::setUpToolbar()
{
    const auto add = [this](const QString &key, const QString &description) {
        ImageList1->add(key, u":/icons/"_s + key + u".svg"_s);
        Toolbar1->addButton({}, description, description, ImageList1->icon(key));
    };
    add(u"lock"_s, u"Lock Objects"_s);
    add(u"unlock"_s, u"Unlock Objects"_s);
    Toolbar1->addSeparator();
    add(u"align-top"_s, u"Align Top"_s);
    add(u"align-left"_s, u"Align Left"_s);
    Toolbar1->addSeparator();
    add(u"same-width"_s, u"Same Width"_s);
    Toolbar1->setIconSize(QSize(20, 20) * desktop::letterScale());
}

void DatabaseGenerator::setUpTableInformation()
{
    Frame1 = new desktop::Frame(this, u"Frame1", u"Table Information"_s);
    FieldGrid grid(Frame1);
    txtTableName = grid.addText(u"txtTableName", u"Table Name"_s);
    grid.lastLabel()->setObjectName(u"lblTableName"_s);
    txtTableDescription = grid.addText(u"txtTableDescription", u"Table Description"_s);
    grid.lastLabel()->setObjectName(u"lblTableDescription"_s);
    cmdTableAdd = new CommandButton(Frame1, u"cmdTableAdd", u"A&dd"_s);
    cmdTabeClear = new CommandButton(Frame1, u"cmdTabeClear", u"C&lear"_s);
    grid.addButtons({cmdTableAdd, cmdTabeClear});
}

void DatabaseGenerator::setUpDisplayOptions()
{
    FrmDisplayOptions = new desktop::Frame(this, u"FrmDisplayOptions", u"Grid Display Options"_s);
    chkGrid = new desktop::CheckBox(FrmDisplayOptions, u"chkGrid", u"Display Grid"_s);
    chkSnapToGrid = new desktop::CheckBox(FrmDisplayOptions, u"chkSnapToGrid", u"Snap to Grid"_s);
    chkGrid->setChecked(true);
    chkSnapToGrid->setChecked(true);
    auto *lblGridSize = new desktop::Label(FrmDisplayOptions, u"lblGridSize", u"Grid Size"_s);
    QStringList sizes;
    for (int size = 1; size <= 10; ++size)
        sizes << QString::number(size);
    txtGridSize = new desktop::ListBox(FrmDisplayOptions, u"txtGridSize", sizes);
    txtGridSize->setLines(listedLines);
    txtGridSize->setAccessibleName(lblGridSize->text());
    lblGridSize->setBuddy(txtGridSize);
    auto *boxes = new QVBoxLayout;
    boxes->addWidget(chkGrid);
    boxes->addWidget(chkSnapToGrid);
    auto *whole = new QHBoxLayout(FrmDisplayOptions);
    whole->addLayout(boxes);
    whole->addStretch();
    whole->addWidget(lblGridSize);
    whole->addWidget(txtGridSize);
}

void DatabaseGenerator::setUpColumnInformation()
{
    Frame2 = new desktop::Frame(this, u"Frame2", u"Column Information"_s);
    FieldGrid grid(Frame2);
    txtFieldName = grid.addText(u"txtFieldName", u"Field Name"_s);
    grid.lastLabel()->setObjectName(u"lblFieldName"_s);
    txtFieldDescription = grid.addText(u"txtFieldDescription", u"Field Description"_s);
    grid.lastLabel()->setObjectName(u"lbFieldDescription"_s);
    List1 = grid.addList(u"List1", u"Field Data Type"_s, {}, listedLines);
    grid.lastLabel()->setObjectName(u"lblFieldDataType"_s);
    txtWidth = grid.addText(u"txtWidth", u"Width"_s);
    grid.lastLabel()->setObjectName(u"lblWidth"_s);
    cmdFieldAdd = new CommandButton(Frame2, u"cmdFieldAdd", u"&Add"_s);
    cmdFieldClear = new CommandButton(Frame2, u"cmdFieldClear", u"&Clear"_s);
    grid.addButtons({cmdFieldAdd, cmdFieldClear});
}

void DatabaseGenerator::setUpCanvas()
{
    TabStrip1 = new desktop::TabStrip(this, u"TabStrip1");
    TabStrip1->setAccessibleName(u"Pages"_s);
    Picture1 = new desktop::PictureBox(this, u"Picture1");
    Picture1->setFrameShape(QFrame::Panel);
    Picture1->setFrameShadow(QFrame::Sunken);
    Picture1->Move(0, 0, canvasWidth, canvasHeight);
    Picture1->setFixedSize(Picture1->size());
    m_surface.emplace(*Picture1, *TabStrip1, m_rows);
    m_surface->onBoxChosen = [this](int index) {
        txtWidth->Tag = QString::number(index);
        txtWidth->setText(runtime::singleText(float(m_surface->Text1(index)->Width())));
    };
    m_surface->keyStep = [this] { return txtGridSize->ListIndex() < 0 ? unselectedStep : gridStep(); };
    cmdGenerateDatebase = new CommandButton(this, u"cmdGenerateDatebase", u"Generate Database"_s);
    cmdSave = new CommandButton(this, u"cmdSave", u"Save Layout"_s);
    cmdExit = new CommandButton(this, u"cmdExit", u"Exit"_s);
}

void DatabaseGenerator::setUpLayout()
{
    auto *left = new QVBoxLayout;
    left->addWidget(Frame1);
    left->addWidget(FrmDisplayOptions);
    auto *frames = new QHBoxLayout;
    frames->addLayout(left, 1);
    frames->addWidget(Frame2, 1);
    auto *page = new QVBoxLayout;
    page->setSpacing(0);
    page->addWidget(TabStrip1, 0, Qt::AlignLeft);
    page->addWidget(Picture1, 0, Qt::AlignLeft);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (CommandButton *button : {cmdGenerateDatebase, cmdSave, cmdExit})
        buttons->addWidget(button);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, 0, margin, margin);
    whole->addWidget(Toolbar1);
    whole->addLayout(frames);
    whole->addLayout(page);
    whole->addLayout(buttons);
    whole->addStretch();
}

void DatabaseGenerator::setUpHandlers()
{
    using desktop::on;
    using Window = DatabaseGenerator;
    const auto onClick = [this](CommandButton *button, void (Window::*handler)()) {
        on(button, &QPushButton::clicked, this, handler);
    };
    onClick(cmdTableAdd, &Window::cmdTableAdd_Click);
    onClick(cmdTabeClear, &Window::cmdTabeClear_Click);
    onClick(cmdFieldAdd, &Window::cmdFieldAdd_Click);
    onClick(cmdFieldClear, &Window::cmdFieldClear_Click);
    onClick(cmdGenerateDatebase, &Window::cmdGenerateDatebase_Click);
    onClick(cmdSave, &Window::cmdSave_Click);
    onClick(cmdExit, &Window::cmdExit_Click);
    on(Toolbar1, &desktop::Toolbar::ButtonClick, this, &Window::Toolbar1_ButtonClick);
    on(TabStrip1, &desktop::TabStrip::BeforeClick, this, &Window::TabStrip1_BeforeClick);
    on(TabStrip1, &desktop::TabStrip::Click, this, &Window::TabStrip1_Click);
    on(Picture1, &desktop::PictureBox::Paint, this, &Window::Picture1_Paint);
    on(Picture1, &desktop::PictureBox::MouseMove, this,
       [](Window *window, int, float x, float) { window->Picture1_MouseMove(x); });
    on(chkGrid, &QCheckBox::toggled, this, &Window::chkGrid_Click);
    on(txtGridSize, &QListWidget::itemSelectionChanged, this, &Window::txtGridSize_Click);
    on(txtWidth, &QLineEdit::textChanged, this, &Window::txtWidth_Change);
}
