#ifndef KX7_TESTS_SUPPORT_DECIMAL_COMMA_LOCALE_H
#define KX7_TESTS_SUPPORT_DECIMAL_COMMA_LOCALE_H

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "test_paths.h"

/// Sets the process's number locale to one with a decimal comma for as long as it lives. On Linux the locale
/// is compiled into the build folder, as few machines have it installed.
class DecimalCommaLocale
{
  public:
    DecimalCommaLocale()
    {
#if defined(_WIN32)
        std::setlocale(LC_NUMERIC, "Czech");
#else
        std::string const folder = std::string(kBuildDir) + "/locales";
        if (!std::filesystem::exists(folder + "/cs_CZ.UTF-8/LC_NUMERIC")) {
            std::filesystem::create_directories(folder);
            std::string const command =
                "localedef -i cs_CZ -f UTF-8 '" + folder + "/cs_CZ.UTF-8' 2>/dev/null";
            [[maybe_unused]] int const status = std::system(command.c_str());
        }
        setenv("LOCPATH", folder.c_str(), 1);
        std::setlocale(LC_NUMERIC, "cs_CZ.UTF-8");
#endif
    }
    ~DecimalCommaLocale()
    {
        std::setlocale(LC_NUMERIC, "C");
    }
    DecimalCommaLocale(DecimalCommaLocale const &) = delete;
    DecimalCommaLocale & operator=(DecimalCommaLocale const &) = delete;

    /// Whether the decimal sign is a comma now.
    bool IsSet() const
    {
        return std::string(std::localeconv()->decimal_point) == ",";
    }
};

#endif
