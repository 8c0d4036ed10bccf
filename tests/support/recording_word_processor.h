#pragma once

#include "desktop/word_processor.h"
#include "runtime/run_time_error.h"

#include <QFileInfo>
#include <QStringList>

#include <map>

namespace ferna::testing {

/// A word processor that only writes down what is asked of it, one line an operation. It numbers
/// the pictures as a real one does, and can be told to fail at an operation.
class RecordingWordProcessor : public WordProcessor {
public:
    struct Picture {
        QString file;
        int top = 0;
        int left = 0;
    };

    QStringList operations;
    QString text; ///< of the document
    std::map<QString, Picture> pictures;
    bool open = false; ///< a document is open
    QString savedAs;   ///< empty: not saved
    QString failAt;    ///< name of the operation that fails
    int failWith = error::NoObject;
    int firstNumber = 2; ///< of a document's first picture

    void getOrCreate() override { record(QStringLiteral("get or create")); }
    void Documents_Add() override {
        record(QStringLiteral("Documents Add"));
        open = true;
    }
    void Documents_Open(const QString& FileName) override {
        record(QStringLiteral("Documents Open"), QFileInfo(FileName).fileName());
        open = true;
    }
    void InsertAfter(const QString& Text) override {
        QString shown = Text;
        shown.replace(u'\r', QStringLiteral("<CR>")).replace(u'\n', QStringLiteral("<LF>"));
        shown.replace(u'\f', QStringLiteral("<FF>"));
        record(QStringLiteral("InsertAfter"), shown);
        text += Text;
    }
    void AddPicture(const QString& FileName, bool LinkToFile, bool SaveWithDocument) override {
        const QString name = QFileInfo(FileName).fileName();
        record(QStringLiteral("AddPicture"), name + yesNo(LinkToFile) + yesNo(SaveWithDocument));
        folders += QFileInfo(FileName).path();
        pictures[QStringLiteral("Picture %1").arg(firstNumber + static_cast<int>(pictures.size()))]
            .file = name;
    }
    void IncrementTop(const QString& name, int shift) override {
        record(QStringLiteral("IncrementTop"), name + u',' + u' ' + QString::number(shift));
        picture(name).top += shift;
    }
    void IncrementLeft(const QString& name, int shift) override {
        record(QStringLiteral("IncrementLeft"), name + u',' + u' ' + QString::number(shift));
        picture(name).left += shift;
    }
    void GoTo(std::optional<int> what, std::optional<int> which, int Count) override {
        record(QStringLiteral("GoTo"),
               (what ? QString::number(*what) : QStringLiteral("empty")) + QStringLiteral(", ")
                   + (which ? QString::number(*which) : QStringLiteral("empty"))
                   + QStringLiteral(", ") + QString::number(Count));
    }
    void SaveAs(const QString& FileName) override {
        record(QStringLiteral("SaveAs"), FileName);
        savedAs = FileName;
    }
    void Close() override {
        record(QStringLiteral("Close"));
        open = false;
    }

    QStringList folders; ///< of the pictures

private:
    static QString yesNo(bool value) {
        return value ? QStringLiteral(", True") : QStringLiteral(", False");
    }

    Picture& picture(const QString& name) {
        const auto found = pictures.find(name);
        if (found == pictures.end())
            throw RunTimeError(error::Subscript, name);
        return found->second;
    }

    void record(const QString& operation, const QString& arguments = {}) {
        if (operation == failAt)
            throw RunTimeError(failWith, operation);
        operations += arguments.isEmpty() ? operation : operation + u' ' + arguments;
    }
};

} // namespace ferna::testing
