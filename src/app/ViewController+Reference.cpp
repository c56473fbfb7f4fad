// SPDX-License-Identifier: GPL-3.0-or-later
// A lesson's reference text and the check of what was typed against it.

#include "app/ViewController.h"

void ViewController::attachReferenceText() {}

void ViewController::attachReferenceTextFrom(const QString&) {}

void ViewController::removeReferenceText() {}

bool ViewController::hasReferenceText() const
{
    return false;
}

void ViewController::checkCurrentSegment() {}

void ViewController::showNextWord() {}
