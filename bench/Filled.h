#pragma once

#include <client/store/RecordFields.h>

/// Valid settings of which hardly any value is the default, with the alarms of the catalogue.
LocalConfigClient::Settings FilledSettings();

/// A catalogue of so many alarm types in the place of the client's.
void MakeCatalogue(int nTypes, int nTypesPerCategory = 1000);

/// Settings with so many sounds, of the types of such a catalogue, and so many categories that flash.
LocalConfigClient::Settings GrownSettings(int nSounds, int nCategories);
