#pragma once

#include "platform/LocalizedString.h"
#include "settings/Deployment.h"

#include <array>
#include <string_view>

/// One of the maker's other applications. Its number, counted from 1, is its place in the catalogue.
struct ShowcaseApplication {
    std::string_view title;
    /// Where the application lies when it is installed.
    std::string_view installedPath;
    /// One of "Productivity", "Utilities", "Photo & Video", "Lifestyle" and "Business".
    std::string_view category;
    std::string_view image;
    /// Its page in the store.
    std::string_view storeAddress;
    /// One sentence.
    std::string_view description;
};

inline constexpr std::array showcaseCatalogue{
    ShowcaseApplication{
        "Tessel",
        "/Applications/Tessel.app",
        NS::LocalizableString("ShowcaseCatalogue", "Photo & Video"),
        "showcase-tessel",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000001",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Turn hundreds of small photos into one large picture that stays sharp however close you look."),
    },
    ShowcaseApplication{
        "Mirelo",
        "/Applications/Mirelo.app",
        NS::LocalizableString("ShowcaseCatalogue", "Photo & Video"),
        "showcase-mirelo",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000002",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Trim, join and turn your video clips without losing quality or waiting for an export."),
    },
    ShowcaseApplication{
        "Kelvo",
        "/Applications/Kelvo.app",
        NS::LocalizableString("ShowcaseCatalogue", "Photo & Video"),
        "showcase-kelvo",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000003",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Warm or cool the light of a whole photo shoot at once, and compare it with the original as you go."),
    },
    ShowcaseApplication{
        "Dravet",
        "/Applications/Dravet.app",
        NS::LocalizableString("ShowcaseCatalogue", "Photo & Video"),
        "showcase-dravet",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000004",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Record your screen, your voice and your camera together, ready to share the moment you stop."),
    },
    ShowcaseApplication{
        "Pallix",
        "/Applications/Pallix.app",
        NS::LocalizableString("ShowcaseCatalogue", "Productivity"),
        "showcase-pallix",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000005",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Pick any colour on your screen and keep your palettes in one place, ready to paste into your work."),
    },
    ShowcaseApplication{
        "Ostrel",
        "/Applications/Ostrel.app",
        NS::LocalizableString("ShowcaseCatalogue", "Lifestyle"),
        "showcase-ostrel",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000006",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Keep well at your desk with gentle reminders to drink, to stretch and to look into the distance."),
    },
    ShowcaseApplication{
        "Fennic",
        "/Applications/Fennic.app",
        NS::LocalizableString("ShowcaseCatalogue", "Utilities"),
        "showcase-fennic",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000007",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Find any file as you type, even inside archives and on disks that are not plugged in."),
    },
    ShowcaseApplication{
        "Yarrow",
        "/Applications/Yarrow.app",
        NS::LocalizableString("ShowcaseCatalogue", "Productivity"),
        "showcase-yarrow",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000008",
        NS::LocalizableString("ShowcaseCatalogue",
                              "Collect notes, lists and clippings in a notebook that is always one keystroke away."),
    },
    ShowcaseApplication{
        "Corvane",
        "/Applications/Corvane.app",
        NS::LocalizableString("ShowcaseCatalogue", "Productivity"),
        "showcase-corvane",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000009",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "See every calendar and every deadline on one timeline, and move your plans until the week fits."),
    },
    ShowcaseApplication{
        "Brindle",
        "/Applications/Brindle.app",
        NS::LocalizableString("ShowcaseCatalogue", "Utilities"),
        "showcase-brindle",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000010",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "See at a glance what fills your disk, and clear away duplicates, leftovers and old downloads."),
    },
    ShowcaseApplication{
        "Salvik",
        "/Applications/Salvik.app",
        NS::LocalizableString("ShowcaseCatalogue", "Business"),
        "showcase-salvik",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000011",
        NS::LocalizableString("ShowcaseCatalogue",
                              "Write an invoice in a minute, send it as a PDF, and always know who has yet to pay."),
    },
    ShowcaseApplication{
        "Quenby",
        "/Applications/Quenby.app",
        NS::LocalizableString("ShowcaseCatalogue", "Utilities"),
        "showcase-quenby",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000012",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Rename thousands of files at once by rules that you can read, with a preview of every new name."),
    },
    ShowcaseApplication{
        "Tavrin",
        "/Applications/Tavrin.app",
        NS::LocalizableString("ShowcaseCatalogue", "Utilities"),
        "showcase-tavrin",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000013",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Keep an eye on processor, memory and network with a small, quiet meter in the menu bar."),
    },
    ShowcaseApplication{
        "Orlet",
        "/Applications/Orlet.app",
        NS::LocalizableString("ShowcaseCatalogue", "Productivity"),
        "showcase-orlet",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000014",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Keep everything that you copy, and paste any of it again by typing a few of its letters."),
    },
    ShowcaseApplication{
        "Ferrix",
        "/Applications/Ferrix.app",
        NS::LocalizableString("ShowcaseCatalogue", "Utilities"),
        "showcase-ferrix",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000015",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Lock your private folders with strong encryption, and open them again with a single password."),
    },
    ShowcaseApplication{
        "Lumet",
        "/Applications/Lumet.app",
        NS::LocalizableString("ShowcaseCatalogue", "Productivity"),
        "showcase-lumet",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000016",
        NS::LocalizableString(
            "ShowcaseCatalogue",
            "Dim everything but the window you work in, so that your attention stays where it belongs."),
    },
    ShowcaseApplication{
        "Pendra",
        "/Applications/Pendra.app",
        NS::LocalizableString("ShowcaseCatalogue", "Productivity"),
        "showcase-pendra",
        ORVIK_SHOWCASE_STORE_PREFIX "1000000017",
        NS::LocalizableString("ShowcaseCatalogue", "Work in focused stretches with a break after each, and see at "
                                                   "the end of the week where the hours went."),
    },
};
