#include "CommandSupport.h"

namespace tabo::test {

int FakeInteraction::alert(const QString &title, const QString &text, const QStringList &buttons)
{
    return ask(title, text, buttons, 0);
}

int FakeInteraction::ask(const QString &title, const QString &text, const QStringList &buttons, int defaultButton)
{
    alerts.append({title, text, buttons, defaultButton});
    return answers.isEmpty() ? 0 : answers.takeFirst();
}

void FakeInteraction::presentError(const Error &error)
{
    errors.append(error);
}

QString FakeInteraction::openFile(const FileRequest &request)
{
    fileRequests.append(request);
    return files.isEmpty() ? QString() : files.takeFirst();
}

QString FakeInteraction::saveFile(const FileRequest &request)
{
    fileRequests.append(request);
    return files.isEmpty() ? QString() : files.takeFirst();
}

} // namespace tabo::test
