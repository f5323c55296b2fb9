#ifndef NDXCOM_TOOL_SHOWFAMILY_H
#define NDXCOM_TOOL_SHOWFAMILY_H

#include <QtCore/QStringList>

#include <functional>
#include <vector>

// A family of dialogs that `ndxcom show` can open: the presentations, each
// advisor family, the rules report. Each show_*.cpp registers its families
// with a static ShowFamily::Registrar, so cmd_show.cpp needs no list of them.
struct ShowFamily
{
    const char *kind; // "presentation", "report", "advisor" or "rule"
    const char *name; // e.g. "question", "scs", "freecmd"; empty for "rule"
    const char *synopsis; // one line: values and arguments
    // Shows the dialog for `value` with the remaining arguments and returns the
    // code the library returned (0 for calls without a result). `value` is the
    // enumeration value for "advisor" (ndxcom show advisor NAME VALUE ARGS...),
    // the rule code for a nameless family (ndxcom show rule CODE PARAMS...,
    // arguments = the parameters after the code) and 0 for every other kind
    // (ndxcom show presentation NAME ARGS...).
    std::function<int(int value, const QStringList &arguments)> run;

    static std::vector<ShowFamily> &all();

    struct Registrar
    {
        Registrar(const char *kind, const char *name, const char *synopsis,
                  std::function<int(int, const QStringList &)> run)
        {
            all().push_back(ShowFamily {kind, name, synopsis, std::move(run)});
        }
    };
};

#endif // NDXCOM_TOOL_SHOWFAMILY_H
