#pragma once

#include "limits.h"
#include "subsystems.h"

#include "platform/forms/application.h"

#include <functional>

namespace bench
{

/// The main() of a benchmark whose one argument is the folder of a practice: measures there as the program,
/// and ends with 1 when something failed or was over its limit, with 2 when it was called otherwise.
inline int onPractice(int argc, char **argv, const Limits &limits, const std::function<void()> &measure)
{
    if (argc != 2) {
        std::cerr << argv[0] << " FOLDER\n";
        return 2;
    }
    qputenv("SANIRELL_CARPETA", argv[1]);
    qputenv("SANIRELL_AJUSTES", argv[1]); // settings of another folder name tables of another base
    forms::Application application(argc, argv);
    forms::Application::dress();
    app::prepare();
    try {
        measure();
        return limits.allWithin() ? 0 : 1;
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}

} // namespace bench
