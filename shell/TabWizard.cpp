#include "shell/TabWizard.h"

#include <algorithm>

#include "forms/Application.h"
#include "forms/Guard.h"
#include "forms/Text.h"
#include "host/iTab.h"

namespace shell {
namespace {

using host::AsTab;

constexpr forms::Color colorButtonFace = forms::colors::buttonFace;
constexpr std::int16_t iStoredTabsPerRow = 6;
constexpr forms::Twips lHeaderRow = 350;

}  // namespace

TabWizard::TabWizard(forms::Container& container, std::string strName)
    : UserControl(container, std::move(strName)) {
  tabControl.setTabsPerRow(iStoredTabsPerRow);
  ImageList.setImageSize(20, 16);  // empty: no step of this wizard has a picture on its header
  frameBackNext.setBorder(false);
  frameBackNext.setBounds({0, 0, 2500, 500});
  cmdBack.setBounds({0, 60, 1200, 375});
  cmdNext.setBounds({1280, 60, 1200, 375});

  tabControl.pageChanged.connect(
      [this](std::int16_t iPreviousTab) { tabControl_Click(iPreviousTab); });
  tabControl.keyDown.connect([this](forms::KeyDown& key) { OnKeyDown.raise(key.code, key.shift); });
  cmdBack.click.connect([this] { cmdBack_Click(); });
  cmdNext.click.connect([this] { cmdNext_Click(); });
  resized.connect([this] { LayOut(); });
  painted.connect([this] { LayOut(); });
  Create();
}

TabWizard::~TabWizard() = default;

void TabWizard::Create() {
  m_iTabCount = 0;
  m_colTabs.clear();
  for (std::int16_t i = 0; i < forms::TabStrip::pageCount; ++i) tabControl.setPageVisible(i, false);
  tabControl.setBackColor(backColor());
  frameBackNext.setBackColor(backColor());
  m_iTabsPerRow = DefaultTabsPerRow();
  tabControl_Click(0);
}

std::int16_t TabWizard::DefaultTabsPerRow() const {
  return static_cast<std::int16_t>((tabControl.tabsPerRow() + 1) / 2);
}

void TabWizard::SetData() {
  for (forms::UserControl* extStep : m_colTabs) extStep->call("SetData");
}

void TabWizard::SetEnabled(bool bEnabled) {
  for (forms::UserControl* extStep : m_colTabs) {
    forms::ignoringErrors([&] { extStep->call<bool>("SetEnabled", bEnabled); });
  }
}

std::int16_t TabWizard::GetCurrentTabHelpContextID() {
  forms::UserControl* extStep = Step(tabControl.currentPage());
  if (!extStep) throw forms::Error(forms::errors::objectNotSet, "The wizard has no steps.");
  const std::int16_t iTopic = AsTab(*extStep).iTab_GetHelpContextID();
  SetHelpContextID(iTopic);
  return iTopic;
}

std::int16_t TabWizard::SetCurrentTabText(const std::string& strTab) {
  const std::int16_t iTab = FindPage(strTab);
  if (iTab < 0) return 0;
  SetCurrentTab(iTab);
  return iTab;
}

std::string TabWizard::GetCurrentTabText() const {
  return tabControl.pageCaption(tabControl.currentPage());
}

void TabWizard::SetHelpContextID(std::int16_t iHelpContextID) {
  tabControl.setHelpContext(iHelpContextID);
}

forms::UserControl* TabWizard::AddTab(const std::string& strProgID, const std::string& strName) {
  std::int16_t iTotalTabs = 0;
  return AddTab(strProgID, strName, iTotalTabs);
}

forms::UserControl* TabWizard::AddTab(const std::string& strProgID, const std::string& strName,
                                      std::int16_t& iTotalTabs) {
  forms::UserControl* extStep = nullptr;
  try {
    extStep = &addControl(strProgID, strName);
    PlaceTab(*extStep, iTotalTabs);
  } catch (const forms::Error& error) {
    if (extStep) removeControl(strName);
    forms::Application::current().messageBox(error.description(), forms::Buttons::ok,
                                             forms::Icon::critical);
    return nullptr;
  }
  FinishTab(*extStep);
  return extStep;
}

/// Puts the step on its page. An error leaves the page without one.
void TabWizard::PlaceTab(forms::UserControl& extStep, std::int16_t& iTotalTabs) {
  ListenTo(&extStep);
  tabControl.setPageVisible(m_iTabCount, true);
  {
    const forms::Guard adding(m_bAddingTab);
    tabControl.setCurrentPage(m_iTabCount);
  }
  iTotalTabs = std::max(iTotalTabs, m_iTabsPerRow);
  const int iRows = (iTotalTabs + m_iTabsPerRow - 1) / m_iTabsPerRow;
  extStep.setBounds(
      {100, lHeaderRow * iRows, bounds().width - 200, tabControl.bounds().height - 4800});
  extStep.setContainer(tabControl);
  extStep.setVisible(true);
  tabControl.setPageCaption(m_iTabCount, AsTab(extStep).iTab_GetTabName());
}

/// From here on nothing keeps a step out.
void TabWizard::FinishTab(forms::UserControl& extStep) {
  forms::ignoringErrors([&] {
    tabControl.setPagePicture(m_iTabCount, ImageList.item(AsTab(extStep).iTab_GetTabIcon()));
  });
  ++m_iTabCount;
  tabControl.setTabsPerRow(std::min(m_iTabCount, m_iTabsPerRow));
  forms::ignoringErrors([&] { tabControl.setCurrentPage(0); });
  extStep.setTabStop(false);
  m_colTabs.push_back(&extStep);
  forms::ignoringErrors([&] { extStep.call<forms::UserControl&>("SetContainer", *this); });
}

void TabWizard::ClearTabs() {
  RemoveTabs();
  Create();
}

void TabWizard::BeforeTerminate() { RemoveTabs(); }

/// False: an error ended the walk.
bool TabWizard::RemoveTabs() {
  std::vector<std::string> colNames;
  for (const auto& [strName, oControl] : controls()) {
    if (forms::lowerCase(strName).find("ctl") != std::string::npos) colNames.push_back(strName);
  }
  try {
    for (const std::string& strName : colNames) {
      std::erase(m_colTabs, find(strName));
      removeControl(strName);
    }
  } catch (const forms::Error&) {
    return false;
  }
  return true;
}

void TabWizard::SetCurrentTab(std::int16_t iTab) {
  bool bCancel = false;
  if (forms::UserControl* extStep = Step(tabControl.currentPage())) {
    forms::ignoringErrors([&] { extStep->call<bool&>("BeforeTabChange", bCancel); });
  }
  if (bCancel) return;
  ListenTo(Step(iTab));
  forms::ignoringErrors([&] { tabControl.setCurrentPage(iTab); });
}

void TabWizard::tabControl_Click(std::int16_t iPreviousTab) {
  if (m_bAddingTab) return;
  std::int16_t iCurrentTab = tabControl.currentPage();
  cmdBack.setEnabled(iCurrentTab != 0);
  cmdNext.setEnabled(iCurrentTab == 0 || iCurrentTab != m_iTabCount - 1);

  if (tabControl.isVisible()) OnTabChanged.raise(iPreviousTab, iCurrentTab);

  if (iCurrentTab >= 1 && iCurrentTab <= static_cast<std::int16_t>(m_colTabs.size())) {
    forms::ignoringErrors([&] {
      if (auto* extLeft = Step(iPreviousTab)) extLeft->call("OtherTabClicked");
    });
    forms::ignoringErrors([&] {
      if (auto* extEntered = Step(iCurrentTab)) AsTab(*extEntered).iTab_TabClicked();
    });
    if (auto* extEntered = Step(iCurrentTab)) extEntered->setTabStop(true);
  }
  for (forms::Control* oChild : tabControl.children()) {
    oChild->setTabStop(tabControl.shows(*oChild) && oChild->bounds().left > 0);
  }
}

bool TabWizard::SetTabVisible(const std::string& strTabName, bool bVisible) {
  const std::int16_t iTab = FindPage(strTabName);
  if (iTab < 0) return false;
  tabControl.setPageVisible(iTab, bVisible);
  return true;
}

std::int16_t TabWizard::GetCurrentTab() const { return tabControl.currentPage(); }

void TabWizard::SetDefaultEnabled(bool bEnabled) { OnSetDefaultEnabled.raise(bEnabled); }

void TabWizard::ListenTo(forms::UserControl* extStep) {
  m_extObj.end();
  if (!extStep) return;
  m_extObj = extStep->objectEvent.listen(
      [this](const forms::ObjectEvent& info) { m_extObj_ObjectEvent(info); });
}

/// An event with other parameters is none of the two that are heard.
void TabWizard::m_extObj_ObjectEvent(const forms::ObjectEvent& info) {
  const auto* strCaption =
      info.parameters.empty() ? nullptr : std::get_if<std::string>(&info.parameters[0]);
  if (!strCaption) return;
  if (info.name == "JumpToTab") SetCurrentTabText(*strCaption);
  if (info.name == "SetTabVisible" && info.parameters.size() > 1) {
    if (const auto* bVisible = std::get_if<bool>(&info.parameters[1])) {
      SetTabVisible(*strCaption, *bVisible);
    }
  }
}

/// These two show the neighbour without asking the step that is left.
void TabWizard::cmdBack_Click() {
  tabControl.setCurrentPage(static_cast<std::int16_t>(tabControl.currentPage() - 1));
}

void TabWizard::cmdNext_Click() {
  tabControl.setCurrentPage(static_cast<std::int16_t>(tabControl.currentPage() + 1));
}

/// The first page with the caption, whatever its case; -1 when there is none.
std::int16_t TabWizard::FindPage(const std::string& strCaption) const {
  for (std::int16_t i = 0; i < forms::TabStrip::pageCount; ++i) {
    if (forms::equalsIgnoringCase(tabControl.pageCaption(i), strCaption)) return i;
  }
  return -1;
}

forms::UserControl* TabWizard::Step(std::int16_t iTab) const {
  if (iTab < 0 || iTab >= static_cast<std::int16_t>(m_colTabs.size())) return nullptr;
  return m_colTabs[static_cast<std::size_t>(iTab)];
}

void TabWizard::put_BackColor(forms::Color color) {
  setBackColor(color);
  propertyChanged.raise("BackColor");
  tabControl.setBackColor(color);
  frameBackNext.setBackColor(color);
}

void TabWizard::put_Style(std::int32_t lStyle) {
  tabControl.setStyle(lStyle);
  propertyChanged.raise("Style");
}

void TabWizard::put_ShowBackNext(bool bShow) {
  m_bShowBackNext = bShow;
  propertyChanged.raise("ShowBackNext");
  frameBackNext.setVisible(bShow);
  cmdBack.setCaption(bShow ? "&Back" : "");
  cmdNext.setCaption(bShow ? "&Next" : "");
  cmdBack.setTabStop(bShow);
  cmdNext.setTabStop(bShow);
  LayOut();
}

void TabWizard::put_TabsPerRow(std::int16_t iTabs) {
  tabControl.setTabsPerRow(iTabs);
  m_iTabsPerRow = iTabs;
  propertyChanged.raise("TabsPerRow");
}

void TabWizard::initProperties() {
  m_bShowBackNext = false;
  m_iTabsPerRow = DefaultTabsPerRow();
}

void TabWizard::readProperties(const forms::PropertyBag& bag) {
  const forms::Color color = bag.read("BackColor", colorButtonFace);
  setBackColor(color);
  tabControl.setStyle(bag.read("Style", std::int32_t{0}));
  m_bShowBackNext = bag.read("ShowBackNext", false);
  tabControl.setBackColor(color);
  frameBackNext.setBackColor(color);
  tabControl.setTabsPerRow(bag.read("TabsPerRow", iStoredTabsPerRow));
}

void TabWizard::writeProperties(forms::PropertyBag& bag) const {
  bag.write("BackColor", get_BackColor(), colorButtonFace);
  bag.write("Style", get_Style(), std::int32_t{0});
  bag.write("ShowBackNext", get_ShowBackNext(), false);
  bag.write("TabsPerRow", get_TabsPerRow(), iStoredTabsPerRow);
}

void TabWizard::LayOut() {
  const forms::Rect own = bounds();
  const forms::Rect backNext = frameBackNext.bounds();
  forms::Rect strip = tabControl.bounds();
  strip.width = own.width;
  strip.height = own.height - (m_bShowBackNext ? backNext.height : strip.top);
  tabControl.setBounds(strip);
  frameBackNext.setBounds(
      {own.width - backNext.width, strip.height, backNext.width, backNext.height});

  const forms::Twips lHeaders = tabControl.tabHeight() * tabControl.rows();
  for (forms::UserControl* extStep : m_colTabs) {
    forms::Rect step = extStep->bounds();
    step.width = strip.width - 300;
    step.height = strip.height - lHeaders + 100;
    extStep->setBounds(step);
  }
}

}  // namespace shell
