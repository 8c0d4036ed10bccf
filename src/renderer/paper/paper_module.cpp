#include "renderer/paper.h"
#include "renderer/paper/own_window.h"
#include "renderer/paper/pdf_document.h"
#include "renderer/paper/printing.h"
#include "windows/application.h"
#include "windows/save_question.h"

#include <QApplication>

namespace ferna::renderer {

namespace {

class LoadedPaper : public Paper {
public:
    std::unique_ptr<QGuiApplication> startQt(int& argc, char** argv) override {
        auto application = std::make_unique<QApplication>(argc, argv);
        dressApplication(*application);
        return application;
    }

    std::optional<QString>
    askWhereToSave(const SaveQuestion& question,
                   const std::function<QStringList(const QString& name)>& files) override {
        SaveSurroundings surroundings;
        surroundings.files = files;
        surroundings.run = runOwnWindow;
        return ferna::askWhereToSave(question, surroundings);
    }

    void printDefault(const pages::Report& report) override { printOnDefault(report); }
    void printChosen(const pages::Report& report) override { printOnChosen(report); }

    QByteArray document(const QByteArray& pdf, const pages::Report& report,
                        const QString& title) override {
        return finishedPdf(pdf, report, title, pdfTime());
    }
};

} // namespace

} // namespace ferna::renderer

extern "C" Q_DECL_EXPORT ferna::renderer::Paper* fernaPaper() {
    static ferna::renderer::LoadedPaper paper;
    return &paper;
}
