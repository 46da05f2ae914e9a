#include <QtCore/qstandardpaths.h>
#include <QtCore/qtemporarydir.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qsurfaceformat.h>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

// The library logs nothing, so every logged line fails the running test. Qt's Wayland client logs two for any window:
// one if it is hidden while its render thread draws, and one if it then moves to an output of another scale.
void failOnLog(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(u"eglSwapBuffers failed")
        && !message.startsWith(u"The cached device pixel ratio value was stale"))
        ADD_FAILURE() << "logged: " << message.toStdString();
}

/// Prints, after a test has failed, the command that runs it again.
class RunAgain final : public testing::EmptyTestEventListener
{
public:
    explicit RunAgain(const char *program) : m_program(program) {}

    void OnTestEnd(const testing::TestInfo &test) override
    {
        if (!test.result()->Failed())
            return;
        std::printf("Run it again:");
        for (const char *name : {"QT_QPA_PLATFORM", "QT_QUICK_BACKEND", "QT_SCALE_FACTOR", "QSG_RENDER_LOOP",
                                 "QSG_RHI_BACKEND", "LIBGL_ALWAYS_SOFTWARE", "TQ_OPENGL_ES"}) {
            if (qEnvironmentVariableIsSet(name))
                std::printf(" %s=%s", name, qgetenv(name).constData());
        }
        std::printf(" %s --gtest_filter=%s.%s\n", m_program, test.test_suite_name(), test.name());
    }

private:
    const char *const m_program;
};

} // namespace

int main(int argc, char *argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");

    // Keeps the tests away from the user's settings and display.
    const QTemporaryDir home;
    for (const char *folder : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(folder, home.path().toUtf8());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    if (!qEnvironmentVariableIsSet("QSG_RENDER_LOOP"))
        qputenv("QSG_RENDER_LOOP", "basic");

    if (qEnvironmentVariableIsSet("TQ_OPENGL_ES")) {
        QSurfaceFormat format;
        format.setRenderableType(QSurfaceFormat::OpenGLES);
        format.setVersion(3, 0);
        QSurfaceFormat::setDefaultFormat(format);
    }

    QGuiApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("TQFoundation"));
    QCoreApplication::setApplicationName(QStringLiteral("Tests"));
    qInstallMessageHandler(failOnLog);
    testing::UnitTest::GetInstance()->listeners().Append(new RunAgain(argv[0]));
    return RUN_ALL_TESTS();
}
