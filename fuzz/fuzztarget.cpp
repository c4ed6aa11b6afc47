#include "fuzztarget.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QTemporaryDir> &scratch()
{
    static auto dir = std::make_unique<QTemporaryDir>(
        (QDir(u"/dev/shm"_s).exists() ? u"/dev/shm"_s : QDir::tempPath()) + u"/spinbar-fuzz-XXXXXX"_s);
    return dir;
}

} // namespace

// Freed blocks are kept from use for a while, in as much memory as the caches hold rather than in the usual
// 256 MB.
extern "C" const char *__asan_default_options()
{
    return "quarantine_size_mb=8:malloc_context_size=8:max_malloc_fill_size=0";
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Lives as long as the process: the fuzzer never returns from its main function.
    static QGuiApplication application(*argc, *argv);
    QLoggingCategory::setFilterRules(u"*=false"_s);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::atexit([] { scratch().reset(); });
    return 0;
}

void FuzzTarget::require(bool holds, const char *claim)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", claim);
    std::abort();
}

QString FuzzTarget::scratchFolder()
{
    return scratch()->path() + u'/';
}

QString FuzzTarget::scratchFile(const QString &name, const QByteArray &content)
{
    const QString path = scratchFolder() + name;
    QFile file(path);
    require(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered), "the scratch file opens");
    require(file.write(content) == content.size(), "the scratch file is written");
    return path;
}
