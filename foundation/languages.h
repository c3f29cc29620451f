#ifndef KX7_FOUNDATION_LANGUAGES_H
#define KX7_FOUNDATION_LANGUAGES_H

/// The languages of the suite. Code 0 is built into the resources of every program and needs no library.
enum ELanguages
{
    CZECH = 0,
    GERMANY = 1,
    ENGLISH = 2,
    HUNGARY = 3,
    SLOVAK = 4,
    RUSSIAN = 5,
    ROMANIAN = 6,
    SLOVENIAN = 7,
    CROATIAN = 8,
    POLISH = 9
};

#endif
