#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/CommandButton.h"
#include "forms/Frame.h"
#include "forms/ImageList.h"
#include "forms/TabStrip.h"
#include "forms/UserControl.h"

namespace shell {

/// Holds the steps of a wizard, each on a page of a tab strip, and moves between them. Steps and
/// pages count from 0; a step's index is its page.
///
/// One accepted change of step, from A to B: `BeforeTabChange` of A, which may refuse;
/// `OnTabChanged` to the parent; `OtherTabClicked` of A; `iTab_TabClicked` of B. When B is the
/// first step the last two are left out.
class TabWizard : public forms::UserControl {
 public:
  TabWizard(forms::Container& container, std::string strName);
  ~TabWizard() override;

  /// The steps themselves, in their order.
  const std::vector<forms::UserControl*>& GetControls() const { return m_colTabs; }
  void SetData();
  /// A step that has no such member is passed over.
  void SetEnabled(bool bEnabled);
  std::int16_t GetCurrentTabHelpContextID();
  /// Goes to the first page with this caption, whatever its case, and answers its number; 0, with
  /// nothing changed, when no page bears it.
  std::int16_t SetCurrentTabText(const std::string& strTab);
  std::string GetCurrentTabText() const;
  void SetHelpContextID(std::int16_t iHelpContextID);

  /// Creates a step and puts it on the next page. Null, after a message, when it can't be created,
  /// is no step, or finds no free page. `iTotalTabs` is the number of steps that the height of the
  /// headers is counted for; it is raised to what one row holds.
  forms::UserControl* AddTab(const std::string& strProgID, const std::string& strName,
                             std::int16_t& iTotalTabs);
  forms::UserControl* AddTab(const std::string& strProgID, const std::string& strName);
  void ClearTabs();
  /// `iTab` is the index of a step. Nothing happens when the current step refuses to be left.
  void SetCurrentTab(std::int16_t iTab);
  /// False: no page bears the caption.
  bool SetTabVisible(const std::string& strTabName, bool bVisible);
  std::int16_t GetCurrentTab() const;
  void SetDefaultEnabled(bool bEnabled);
  void BeforeTerminate();

  forms::Color get_BackColor() const { return backColor(); }
  void put_BackColor(forms::Color color);
  std::int32_t get_Style() const { return tabControl.style(); }
  void put_Style(std::int32_t lStyle);
  bool get_ShowBackNext() const { return m_bShowBackNext; }
  void put_ShowBackNext(bool bShow);
  std::int16_t get_TabsPerRow() const { return tabControl.tabsPerRow(); }
  void put_TabsPerRow(std::int16_t iTabs);
  std::int16_t get_Rows() const { return tabControl.rows(); }

  void initProperties() override;
  void readProperties(const forms::PropertyBag& bag) override;
  void writeProperties(forms::PropertyBag& bag) const override;

  forms::Event<std::int16_t&, std::int16_t&> OnTabChanged;  // iPreviousTab, iCurrentTab
  forms::Event<bool&> OnSetDefaultEnabled;
  forms::Event<std::int16_t&, std::int16_t&> OnKeyDown;  // iKeyCode, iShift

 private:
  void Create();
  void PlaceTab(forms::UserControl& extStep, std::int16_t& iTotalTabs);
  void FinishTab(forms::UserControl& extStep);
  bool RemoveTabs();
  void ListenTo(forms::UserControl* extStep);
  void LayOut();
  std::int16_t DefaultTabsPerRow() const;
  std::int16_t FindPage(const std::string& strCaption) const;
  forms::UserControl* Step(std::int16_t iTab) const;

  void tabControl_Click(std::int16_t iPreviousTab);
  void m_extObj_ObjectEvent(const forms::ObjectEvent& info);
  void cmdBack_Click();
  void cmdNext_Click();

  forms::TabStrip tabControl{*this, "tabControl"};
  forms::Frame frameBackNext{*this, "frameBackNext"};
  forms::CommandButton cmdBack{frameBackNext, "cmdBack", "< &Back"};
  forms::CommandButton cmdNext{frameBackNext, "cmdNext", "&Next >"};
  forms::ImageList ImageList;

  std::vector<forms::UserControl*> m_colTabs;
  forms::Subscription m_extObj;  // the one step whose custom events are heard
  std::int16_t m_iTabCount = 0;
  std::int16_t m_iTabsPerRow = 0;
  bool m_bShowBackNext = false;
  bool m_bAddingTab = false;
};

}  // namespace shell
