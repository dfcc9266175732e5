#pragma once

#include "core/Form.h"

class QAction;
class QComboBox;
class QFrame;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace ql {

class CodeBox;
class DirListBox;
class DriveListBox;
class FileListBox;
class PageStack;
class StepList;

// The Preview wizard: receives the code of the effect that handed over and
// takes the user through previewing it, pasting it into a page and placing
// the files it needs. Five stacked pages; the fourth (upload to a Web
// server) is not reached by the wizard's navigation.
class PreviewForm : public Form {
    Q_OBJECT
public:
    explicit PreviewForm(App& app);
    void load() override;
    void unloading() override;

    // State of the wizard.
    qint16 StepIndex = 0;
    qint16 NeedsFiles = 0;
    qint16 SectionedCode = 0;
    qint16 ReturningToEditor = 0;
    qint16 TransferState = 0;

    QString code() const;
    QString targetFolder() const;
    // Sets the target folder of Step 3 (after a new folder was made there).
    void showTargetFolder(const QString& path);
    QString targetDrive() const;

private:
    void buildMenus();
    QWidget* buildStep1();
    QWidget* buildStep2();
    QWidget* buildStep3();
    QWidget* buildStep4();
    QWidget* buildFinish();

    void next();
    void previous();
    void showFinish();
    void toFront(int page);
    // Marks the step of the page in front in the list of steps.
    void markStep(int page);
    void step2Layout();
    void step3DefaultLayout();
    void failedCopyLayout();
    // The captions and paths of the folder trees follow the trees.
    void showFolderCaptions();
    void setNavigationShown(bool shown);

    void copyToClipboard();
    void frontPage();
    void ReturnToEditApplet(bool modal, int lastEffect);
    void returnToMainMenu();

    // Publishing (Step 1 and Step 3).
    void previewEffect();
    void manualCopyForPreview();
    void clickToPreview();
    void copyFiles();
    void manualCopy();
    void manualCopyDone();
    void makeDir();
    void writeBackup(const QString& target);
    void recordFailure(const QString& name, bool& failed);

    QMenuBar* menuBar_ = nullptr;
    StepList* steps_ = nullptr;
    QGridLayout* frame5Grid_ = nullptr;
    PageStack* pages_;
    QLabel* Label3;
    QPushButton* Command14;
    QPushButton* Command15;

    // Step 1
    QPushButton* Command11;
    // Step 2
    CodeBox* Text1;
    QLabel* Label1;
    QLabel* Label8;
    QLabel* Label9;
    QLabel* Label5;
    // Step 3
    QLabel* Label14;
    QLabel* Label15;
    QFrame* Frame5;
    QLabel* Label2;
    QLabel* Label6;
    QLabel* Label7;
    QLabel* Label10;
    DriveListBox* Drive1;
    DirListBox* Dir1;
    FileListBox* File1;
    DriveListBox* Drive2;
    DirListBox* Dir2;
    FileListBox* File2;
    QListWidget* List1;
    QPushButton* Command6;
    QToolButton* Command1;
    QPushButton* Command7;
    QPushButton* Command8;
    QPushButton* Command9;
    QPushButton* Command10;
    QLabel* sourceCaption_;
    QLabel* targetCaption_;
    QLabel* sourcePath_;
    QLabel* targetPath_;
    QFrame* Line1;
    QFrame* Line2;
    // Step 4
    QComboBox* Combo3;
    QList<QLineEdit*> Text3;
};

}  // namespace ql
