#pragma once

class Defaults;

// Registers the built-in value of every key that has one. Registration is
// in memory only and is repeated at every start.
void regDefaultPreference(Defaults& store);
