#pragma once

/// \file
/// Everything that the library offers.

#include <Zanthic/CComboBoxListDelegate.h>
#include <Zanthic/CComboBoxListModel.h>
#include <Zanthic/CComboBoxListView.h>
#include <Zanthic/CInterWidgetMenu.h>
#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/Custom.h>
#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomComboBox.h>
#include <Zanthic/CustomDockTitleBar.h>
#include <Zanthic/CustomDockWidget.h>
#include <Zanthic/CustomFolderSelectWidget.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomGroupBox.h>
#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomLineEdit.h>
#include <Zanthic/CustomLineWidget.h>
#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomMenu.h>
#include <Zanthic/CustomMessageBox.h>
#include <Zanthic/CustomObject.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomQssHelper.h>
#include <Zanthic/CustomRadioButton.h>
#include <Zanthic/CustomSelectWidget.h>
#include <Zanthic/CustomTextEdit.h>
#include <Zanthic/CustomTitleBar.h>
#include <Zanthic/CustomToolBar.h>
#include <Zanthic/CustomToolTip.h>
#include <Zanthic/CustomWidget.h>
#include <Zanthic/HotKeyEvent.h>
