#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// design: the design library (list, add, delete, make default, import,
// export) and a preview of a design filled with the sample document.
class DesignCommand : public Command
{
public:
    explicit DesignCommand(Session &session);
    int execute(const QStringList &args) override;

    // Whether `args` (the words after "design") ask for a rendering, which
    // needs the GUI application.
    static bool rendersPages(const QStringList &args);

private:
    int list(bool json);
    int add(const QString &title);
    int remove(const QString &title);
    int makeDefault(const QString &title);
    int importFile(const QString &path);
    int exportFile(const QString &title, const QString &path);
    int preview(const QString &path, const QString *title);
    // The page, row and stylesheet texts to files (get) or from files (set),
    // so that a design can be edited in any editor.
    struct TextFiles
    {
        QString invoice, item, css;
        bool any() const { return !invoice.isEmpty() || !item.isEmpty() || !css.isEmpty(); }
    };
    int getTexts(const QString &title, const TextFiles &files);
    int setTexts(const QString &title, const TextFiles &files);
};

} // namespace tabo::cli
