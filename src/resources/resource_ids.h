#pragma once

// The dialogs and the icon of the library's resources.
enum ResourceId : unsigned {
    kViewerFrameDialog = 1000,
    kViewerIcon = 1001,
    kPanelDialog = 1002,
    kHelpDialog = 1003,
    kAddPage = 1019,
    kManagerDialog = 1020,
    kNotesPage = 1021,
    kRemovePage = 1022,
    kCustomizePage = 1023,
    kModalViewerDialog = 1024,
    kUpdatePage = 1026,
};
