#pragma once

#include "app/desktop/Appearance.h"
#include "desktop/DesktopProgram.h"

// All that the program can show, one after another, as its users come to it.
class Views : public DesktopProgram {
protected:
    ~Views() override;

    // Gets each view while it is open: a window, a sheet, a question, a menu, or a part of them.
    using Look = std::function<void(const std::string& name, QWidget& view)>;

    struct How {
        std::string name; // stands before the names of the views
        QString language;
        Appearance::Choice appearance = Appearance::light;
    };
    // Launches the program anew and goes through its views. With FOLVERO_WRITE_VIEWS in the
    // environment, writes pictures of them into that folder.
    void visit(How how, const Look& look);

private:
    void showStart();
    void showImport();
    void showImportAtWork();
    void showPasswords();
    void showBook();
    void showSettings();
    void showEditors();
    void showPages();
    void showStyles();
    void showChooser();
    void showPublish();
    void showKindsOfBooks();
    void showPublished();
    void showQuestions();
    void showPanels();
    void showMenus();

    void look(const std::string& name, QWidget& view) const;
    // The menu, list, question or panel that opens then, and that is left without an answer.
    void lookInto(const std::string& name, const std::function<void()>& open) const;
    void import(const QString& file) const;

    How iHow;
    Look iLook;
};
