// SPDX-License-Identifier: MIT
// Every module of Qt that a view imports. Nothing loads this file: it stands where Qt's deploy tool looks for imports,
// which is beside main.cpp and not in the folders of the views, and what it finds goes into the bundle of macOS.
import QtQml
import QtQml.Models
import QtQuick
import QtQuick.Templates

QtObject {}
