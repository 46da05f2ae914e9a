#include "QmlApp.h"

#include "DeveloperPage.h"

namespace TQFoundation {

QList<TQApp> QmlApp::allCases()
{
    constexpr auto cases = TQApp::allCases();
    return {cases.begin(), cases.end()};
}

QString QmlApp::developerPageText()
{
    return DeveloperPage::title();
}

void QmlApp::openDeveloperPage() const
{
    DeveloperPage::open();
}

} // namespace TQFoundation
