#pragma once

#include "base/texts.h"
#include "desktop/setting.h"

#include <QVariant>

#include <span>
#include <string>

namespace tavrel {

class Preferences;

/// How a setting is shown and stored.
enum class PreferenceKind {
    onOff,    ///< a switch, stored as 0 or 1
    number,   ///< a field, stored as a number; an empty field as an empty text
    opacity,  ///< a number from 0 to 1
    text,     ///< a field, stored as a text
    popUp,    ///< a menu, stored as its tag
    color,    ///< a well, stored as an archived colour
};

/// What a change of a setting tells the open documents; named after the notification actions.
enum class PreferenceNotice { none, tableView, columns, editDive, profile, deco, rebreather, all };

/// A setting in the window: its control, the page and group it stands in, what a change of it tells, its words, and the
/// switch that has to be on for it to be of use.
struct PreferenceKey {
    AnySetting setting;
    std::string control;
    int page;  ///< from 1
    PreferenceNotice notice;
    Title group;
    Title label;
    Title unit = {};
    const Setting<bool>* enabledBy = nullptr;
    std::span<const Title> choices = {};  ///< of a pop-up; the tag is the place
    bool kept = true;                     ///< false: its switch neither shows nor stores anything
    Title note = {};                      ///< said below the control

    const char* key() const;
    PreferenceKind kind() const;
};

/// The settings in the order in which they are stored.
std::span<const PreferenceKey> preferenceKeys();

/// The value that a control shows: bool, text, int, double or colour by kind. A number that was never stored is an
/// empty text, a colour that was never stored is the one a reset gives.
QVariant storedValue(const Preferences& preferences, const PreferenceKey& key);
QVariant resetValue(const PreferenceKey& key);
/// A value in words: "on", "15 l", "#0000ff"; a dash for none.
QString valueInWords(const PreferenceKey& key, const QVariant& value);
void storeValue(Preferences& preferences, const PreferenceKey& key, const QVariant& value);

}  // namespace tavrel
