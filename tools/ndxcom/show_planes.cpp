#include "showfamily.h"

#include <QNodrixMessageBox>

// The advisors of the plane editors and the module rules report, for
// `ndxcom show advisor <name> VALUE ...` and `ndxcom show rule CODE ...`.
// Missing arguments are passed as empty strings (or 0 for numbers), as an
// application that has nothing to fill in would pass them.

namespace {

using M = QNodrixMessageBox;

ShowFamily::Registrar
    freeCmd("advisor", "freecmd",
            "VALUE [ARG1 [ARG2]]: free command plane, 0..14; returns Yes, No, Ignore, 0 or -1",
            [](int value, const QStringList &a) {
                return M::execFreeCmdModeAdvisor(M::enFreeCmdModeAdvisor(value), a.value(0),
                                                 a.value(1));
            });

ShowFamily::Registrar scheme("advisor", "scheme", "VALUE [STEPS]: 4-feed zones of the scheme, 0..5",
                             [](int value, const QStringList &a) {
                                 M::execProjectSchemeAdvisor(M::enSchemeAdvisor(value), a.value(0));
                                 return 0;
                             });

ShowFamily::Registrar skel("advisor", "skel", "VALUE [STEPS]: borders of the skeleton, 0..6",
                           [](int value, const QStringList &a) {
                               M::execProjectSkelAdvisor(M::enSkelAdvisor(value), a.value(0));
                               return 0;
                           });

ShowFamily::Registrar elab("advisor", "elab",
                           "VALUE [ARG1 [ARG2]]: automatic elaboration, 1..8; returns Yes or No",
                           [](int value, const QStringList &a) {
                               return int(M::execProjectElabAdvisor(M::enProjElabAdvisor(value),
                                                                    a.value(0), a.value(1)));
                           });

ShowFamily::Registrar commandPlane("advisor", "commandplane", "VALUE [ARG]: command plane, 1..8",
                                   [](int value, const QStringList &a) {
                                       M::execCommandPlaneAdvisor(M::enCommandPlaneAdvisor(value),
                                                                  a.value(0));
                                       return 0;
                                   });

// The body-plane advisor takes whole numbers; text that is not one counts as 0.
ShowFamily::Registrar
    bodyPlane("advisor", "bodyplane", "VALUE [N1 [N2 [N3]]]: body planes, 1..11; returns 0",
              [](int value, const QStringList &a) {
                  return M::execBodyPlaneAdvisor(M::enBodyPlaneAdvisor(value), a.value(0).toInt(),
                                                 a.value(1).toInt(), a.value(2).toInt());
              });

// The record is the code followed by the rule's parameters.
ShowFamily::Registrar rule("rule", "", "CODE [PARAMETER...]: module rules report, 1..65",
                           [](int value, const QStringList &a) {
                               QStringList record {QString::number(value)};
                               record << a;
                               M::execModuleRulesAdvisor(record);
                               return 0;
                           });

} // namespace
