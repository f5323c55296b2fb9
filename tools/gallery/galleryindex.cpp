#include "galleryindex.h"

#include "toollanguages.h"

#include <QtCore/QFile>
#include <QtCore/QTextStream>

namespace {

QString html(const QString &text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

// Language codes are the page's class names: letters only.
QString cssClass(const QString &code)
{
    return QStringLiteral("l-") + code;
}

} // namespace

bool writeIndex(const QString &path, const QStringList &languages, const QVector<IndexRow> &rows,
                const QString &screen, QString *error)
{
    QFile index(path);
    if (!index.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        *error = index.errorString();
        return false;
    }
    QTextStream out(&index);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    out.setCodec("UTF-8");
#endif
    const QString first = languages.value(0);
    out << "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>NdxCom dialogs</title>\n"
           "<style>body{font-family:sans-serif}td{vertical-align:top;padding:6px;"
           "border-bottom:1px solid #ccc}.text{font-family:monospace;white-space:pre-wrap}"
           "td.source{background:#f6f6f0}.l{display:none}";
    for (const QString &code : languages)
        out << "body.show-" << code << " ." << cssClass(code) << "{display:block}";
    out << "</style>\n<script>\n"
           "function pick(code) {\n"
           "  document.body.className = 'show-' + code;\n"
           "  document.getElementById('language').value = code;\n"
           "  if (history.replaceState) history.replaceState(null, '', '#' + code);\n"
           "}\n"
           "window.onload = function () {\n"
           "  var code = location.hash.substring(1);\n"
           "  var known = document.getElementById('language').options;\n"
           "  for (var i = 0; i < known.length; ++i)\n"
           "    if (known[i].value === code) pick(code);\n"
           "};\n"
           "</script></head>\n<body class=\"show-"
        << first << "\">\n<h1>NdxCom dialogs</h1>\n<p>Language: <select id=\"language\" "
        << "onchange=\"pick(this.value)\">";
    for (const QString &code : languages)
        out << "<option value=\"" << code << "\">" << html(languageName(code)) << " (" << code
            << ")</option>";
    out << "</select> &middot; " << rows.size() << " dialogs &middot; rendered on " << html(screen)
        << ".</p>\n"
        << "<p>Beside each picture: the library's Italian source texts that the dialog "
           "shows (translated in the other languages), then what the dialog showed.</p>\n"
           "<table>\n<tr><th>Picture</th><th>Italian source</th><th>Family</th><th>Value</th>"
           "<th>Arguments</th><th>Text shown</th><th>Result</th></tr>\n";

    for (const IndexRow &row : rows) {
        QString pictures, texts, results;
        for (const QString &code : languages) {
            const RenderedDialog shown = row.shown.value(code);
            const QString open = QStringLiteral("<div class=\"l %1\">").arg(cssClass(code));
            pictures += open;
            for (const QString &file : shown.pictures)
                pictures += QStringLiteral("<img src=\"%1\" alt=\"%1\"><br>").arg(html(file));
            pictures += QLatin1String("</div>");
            texts += open + html(shown.texts.join(QLatin1String("\n---\n")))
                + QLatin1String("</div>");
            results += open + QString::number(shown.result) + QLatin1String("</div>");
        }
        out << "<tr><td>" << pictures << "</td><td class=\"text source\">"
            << html(row.sources.join(QLatin1String("\n---\n"))) << "</td><td>"
            << html(row.entry.family) << "</td><td>" << html(row.entry.value) << "</td><td>"
            << html(row.entry.arguments) << "</td><td class=\"text\">" << texts << "</td><td>"
            << results << "</td></tr>\n";
    }
    out << "</table>\n</body></html>\n";
    out.flush();
    if (index.error() != QFileDevice::NoError) {
        *error = index.errorString();
        return false;
    }
    return true;
}
