#include "app/options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace quillfern::app {
namespace {

constexpr int wrong_command_line = 2;

const QCommandLineOption help_option(
    {QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Print the options."));
const QCommandLineOption version_option(
    {QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Print the version."));
const QCommandLineOption sample_option(QStringLiteral("sample"), QStringLiteral("Open the sample organization."));
const QCommandLineOption scheme_option(QStringLiteral("scheme"),
    QStringLiteral("Colors: light or dark instead of the desktop's."), QStringLiteral("light|dark"));
const QCommandLineOption today_option(
    QStringLiteral("today"), QStringLiteral("Show everything as of this day."), QStringLiteral("YYYY-MM-DD"));
const QCommandLineOption exit_option(QStringLiteral("exit-after-paint"),
    QStringLiteral("Leave once the first window is painted, to measure the start."));

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QStringLiteral("Grants and the board for small nonprofits."));
    parser.addOptions({help_option, version_option, sample_option, scheme_option, today_option, exit_option});
    parser.addPositionalArgument(
        QStringLiteral("files"), QStringLiteral("Organizations to open (.quillfern)."), QStringLiteral("[files…]"));
}

void refuse(Options& options, const QString& reason)
{
    options.text = "quillfern: " + reason.toStdString() + " (see --help)\n";
    options.exit_status = wrong_command_line;
}

void check(Options& options, const QCommandLineParser& parser, bool understood)
{
    if (!understood)
        return refuse(options, parser.errorText());
    if (parser.isSet(today_option) && !options.today)
        return refuse(options, QStringLiteral("--today wants a date such as 2026-09-10"));
    if (parser.isSet(scheme_option) && options.scheme != QLatin1String("light")
        && options.scheme != QLatin1String("dark"))
        return refuse(options, QStringLiteral("--scheme wants light or dark"));
}

} // namespace

DayWatch::Clock Options::clock() const
{
    if (today)
        return [day = *today] { return day; };
    return grants::today_here;
}

Options read_options(const QStringList& arguments, Strictness strictness)
{
    QCommandLineParser parser;
    describe(parser);
    const bool understood = parser.parse(arguments);
    Options options;
    options.files = parser.positionalArguments();
    options.sample = parser.isSet(sample_option);
    options.scheme = parser.value(scheme_option);
    options.today = grants::Day::parse(parser.value(today_option).toStdString());
    options.exit_after_paint = parser.isSet(exit_option);
    options.shareable =
        understood && !parser.isSet(scheme_option) && !parser.isSet(today_option) && !parser.isSet(exit_option);
    if (parser.isSet(help_option)) // before there is an application, the parser knows no name of the program
        options.text =
            parser.helpText().replace(QLatin1String("<executable_name>"), QLatin1String("quillfern")).toStdString();
    else if (parser.isSet(version_option))
        options.text = "quillfern " + QCoreApplication::applicationVersion().toStdString() + '\n';
    else if (strictness == Strictness::strict)
        check(options, parser, understood);
    return options;
}

QStringList arguments_of(int count, char** values)
{
    QStringList arguments;
    for (int i = 0; i < count; ++i)
        arguments.append(QString::fromLocal8Bit(values[i]));
    return arguments;
}

} // namespace quillfern::app
