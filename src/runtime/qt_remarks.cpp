#include "runtime/qt_remarks.h"

#include <QString>

namespace ferna {

namespace {

QtMessageHandler& handlerBefore() {
    static QtMessageHandler handler = nullptr;
    return handler;
}

void passOn(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR not set")))
        handlerBefore()(type, context, text);
}

} // namespace

void hushMissingRuntimeFolder() {
    if (const QtMessageHandler before = qInstallMessageHandler(passOn); before != passOn)
        handlerBefore() = before;
}

} // namespace ferna
