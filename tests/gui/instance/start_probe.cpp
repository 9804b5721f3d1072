// start_probe PATIENCE FILE...: starts as the program does, without windows. Prints its role and how many microseconds
// it took to learn it, then each request that it performs. It runs on, unless its request was handed over.
#include "app/instance/single_instance.h"
#include "app/instance/start_server.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace quillfern::app;

void print(const StartRequest& request)
{
    for (const std::string& file : request.files)
        std::printf("performs %s\n", file.c_str());
    std::fflush(stdout);
    if (request.activationToken == "crash")
        std::abort();
}

} // namespace

int main(int argc, char** argv)
{
    const char* token = std::getenv("XDG_ACTIVATION_TOKEN");
    const StartRequest request{
        .files = {argv + 2, argv + argc}, .sample = false, .activationToken = token ? token : ""};
    SingleInstance instance;
    const auto begin = std::chrono::steady_clock::now();
    const StartRole role = instance.claim(request, std::chrono::milliseconds(std::atoi(argv[1])));
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - begin;
    constexpr const char* names[] = {"owner", "handed-over", "alone"};
    std::printf("%s %.0f\n", names[static_cast<int>(role)], time.count());
    std::fflush(stdout);
    if (role == StartRole::handedOver)
        return 0;
    QCoreApplication application(argc, argv);
    if (request.activationToken != "crash")
        print(request);
    const StartServer server(instance, print);
    return QCoreApplication::exec();
}
