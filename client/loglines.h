// What the panel logs at the moments that benchmark, tools and tests wait for; nowhere else do they hang on
// the wording of a line. Who changes one in the panel changes it here.
#pragma once

namespace loglines
{
// Start
constexpr const char *started = "init OK!";            ///< main.cpp, behind the last step
constexpr const char *servicesUp = "StartComplate: 2"; ///< the device's second service, as reported
constexpr const char *unknownService = "StartComplate param invalid!"; ///< any other: nothing follows from it
constexpr const char *textsLoaded = "install qm succeed!";             ///< widget/language
constexpr const char *textsMissing = "load qm failed!";                ///< the same
// Keys
constexpr const char *homeKey = "MainWindow: key:";            ///< the home screen has got a key
constexpr const char *pageKey = "MenuDirectory: key:";         ///< a page has
constexpr const char *nobodysKey = "null == activeWid %1";     ///< no window has, by its code
constexpr const char *dialogsKey = "dialog no this handle!";   ///< a dialog has and does not know it
constexpr const char *released = "TIMER_CancelTimer";          ///< a key is up, whatever it was
constexpr const char *okReleased = "TIMER_CancelTimer ==  34"; ///< OK is
constexpr const char *cursorLeft = "left: %1";                 ///< the cursor has come to that row
constexpr const char *cursorRight = " ###Right 1";             ///< it has gone to the right once
constexpr const char *rowEntered = "objID:";                   ///< OK on a row, its object behind
// Messages and the way home
constexpr const char *messageUp = "str: ";                      ///< its text behind
constexpr const char *messageClosed = "slot_CloseDialog:";      ///< its time is over
constexpr const char *messageRefused = "qDialog create faild!"; ///< the production test has the screen
constexpr const char *timeToGoHome = "slot_ReturnToMain!!!!!!"; ///< it is looked whether the panel goes
constexpr const char *goesHome = "slot_ReturnToMain start!!!!!!";
constexpr const char *wentHome = "slot_ReturnToMain end!!!!!!";
constexpr const char *unlocked = "SetLockState End!!!";
// Reports and the store
constexpr const char *valueTaken = "ReportMsgToParaProcess "; ///< item and value behind
constexpr const char *storeChanged = "slot_updateXml m_activityElementList";
// Production test
constexpr const char *inputUnderTest = "InputTestNumCur"; ///< its number behind
} // namespace loglines
