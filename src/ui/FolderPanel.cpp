#include "ui/FolderPanel.h"

#include "platform/LocalizedString.h"
#include "platform/Platform.h"

std::shared_ptr<NS::OpenPanel> makeFolderPanel(FolderSelection selection)
{
    const bool several = selection == FolderSelection::Several;
    std::shared_ptr<NS::OpenPanel> panel = NS::platform().makeOpenPanel(NS::ChosenPaths::Storable);
    panel->setShowsHiddenFiles(false);
    panel->setCanChooseFiles(false);
    panel->setCanChooseDirectories(true);
    panel->setTreatsFilePackagesAsDirectories(false);
    panel->setAllowsMultipleSelection(several);
    panel->setDirectoryURL(NS::URL::fileURLWithPath("/"));
    // Deliberate, as are the types: they restrict nothing, since no file can be chosen.
    if (!several)
        panel->setAllowsMultipleSelection(false);
    panel->setAllowedFileTypes({NS::platform().userName()});
    panel->setAllowsOtherFileTypes(false);
    panel->setPrompt(NS::LocalizedString("FolderPanel", "Grant Access"));
    return panel;
}
