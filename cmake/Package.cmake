# SPDX-License-Identifier: GPL-3.0-or-later
# `cpack -G DEB` in a release build tree makes the Debian package `kelmora`
# (scripts/package does that and checks it with lintian).

set(CPACK_PACKAGE_NAME kelmora)
set(CPACK_PACKAGE_VENDOR "The Kelmora developers")
set(CPACK_PACKAGE_CONTACT "The Kelmora developers <packaging@kelmora.app>")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "dictation-practice player for language learners")
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://kelmora.app/")
# CPack puts the summary first and indents these lines itself.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Kelmora plays a recording sentence by sentence, slower or faster with the
pitch kept, while the learner types what they hear into a table with one
row per sentence. What is typed is saved per recording as an LRC transcript.

It opens mp3, m4a, m4r, aac, wav, aif, aiff, caf and flac files, answers
the desktop's media keys and speaks ten languages.")
# The libraries come from the programs themselves; Qt's plugins for SVG
# icons are loaded at run time, so they are named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, fonts-noto-cjk, fonts-thai-tlwg")

include(CPack)
