// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "alerting/frame/stores.h"
#include "alerting/responses/keywords.h"
#include "alerting/services/types.h"
#include "platform/ui/lists.h"

namespace platform::ui {
class Bitmap;
}

namespace alerting {

namespace ui = platform::ui;

class CAlertPage;

/// The message that a new response of a service starts with, in stored form.
struct DefaultMessage {
  std::string body, subject;
  std::uint32_t priority = 0;  ///< index into the priority names
  KeywordIds bodyKeywords{}, subjectKeywords{};
};

/// Root of every site notification service: the service's identity, its common record, and the operations
/// through which exports, sheets, panels and tests treat all types alike. Operations on records answer false
/// after they have shown why, unless they say otherwise; a record that could not be read stays as it was.
class CNtfyService {
 public:
  CNtfyService(const GUID& id, TypeCode type);
  virtual ~CNtfyService() = default;
  CNtfyService(const CNtfyService&) = delete;
  CNtfyService& operator=(const CNtfyService&) = delete;

  const GUID& ServiceId() const { return service_id_; }
  /// The identity of the type's test response record.
  const GUID& TestResponse() const { return test_response_id_; }
  ALRTNTFYSERV& Common() { return common_; }
  const ALRTNTFYSERV& Common() const { return common_; }
  std::string Name() const { return std::string(common_.name.View()); }
  /// The code that the service list stored; the class's own until then.
  std::uint32_t Code() const { return code_; }
  void SetCode(std::uint32_t code) { code_ = code; }
  /// The row of the class's own type.
  const ServiceType& Type() const { return kServiceTypes[own_type_]; }

  // Windows of the type; made by the factories of service_ui.h, and null, 0 or cancelled where there is none.

  /// Runs the type's property sheet; its modal result.
  virtual int PropertySheet(ui::Window* parent);
  int GetResponsePanelCount() const { return 1; }
  /// The caller owns the panel.
  CAlertPage* CreateResponsePanel(int index, ALERTRESPREC* response, std::uint32_t wizard_buttons);
  int GetAddUserPanelCount() const { return Type().add_user_panels; }
  CAlertPage* CreateAddUserPanel(int index, const GUID& user, std::uint32_t wizard_buttons);
  /// Chooses a user of the service; false when none was chosen.
  bool SelectUser(ui::Window* parent, std::string& name, GUID& user);
  /// Tests the service with one of its users; true when the dialog ended with OK.
  bool TestDialog(const GUID& user, ui::Window* parent);
  /// Sends a test alert. Null texts leave the test response's own.
  bool SendTestAlert(const GUID& target, const char* message, const char* subject_or_file,
                     std::uint16_t priority, ui::Window* parent);

  // The type's answers.

  bool IsUserService() const { return Type().is_user; }
  bool IsDeviceService() const { return Type().is_device; }
  bool UsesExtensionAgent() const { return Type().uses_extension_agent; }
  bool IsModemService() const { return Type().is_modem; }
  /// The type's own icon, loaded once from the library's resources, or null.
  const ui::Bitmap* GetIcon() const;
  std::uint16_t GetResponseType() const { return Type().response_type; }
  int GetIconOffset() const { return Type().icon_offset; }
  virtual int GetMaxMessageLength() const { return Type().max_message; }
  int GetMaxSubjectLength() const { return Type().max_subject; }
  int GetMaxPasswordLength() const { return Type().max_password; }
  int GetMaxLoginIdLength() const { return Type().max_login; }
  int GetMaxUserAddressLength() const { return Type().max_address; }
  int GetMessageLineWidth() const { return Type().line_width; }
  virtual bool HasModem() const { return false; }
  virtual bool HasBackupModem() const { return false; }
  /// The identity of the service's backup record; null where the type has none.
  virtual GUID GetModemId() const { return kNullGuid; }
  bool IsCompletelyConfigured() const { return true; }
  virtual int GetIncompleteConfigMessageId() const { return 0; }

  // Records.

  /// Reads the common record, then the specific one, whose failure is reported but does not fail the load.
  bool Load();
  virtual bool LoadSpecificRecord(CAlertNtfyServDB& store) = 0;
  /// The working copy of the service-specific record; null for a type without one.
  virtual void* GetSpecificRecord() = 0;
  /// Reads all records of the service again. False, and the object as it was, when the service is gone or has
  /// become another type's.
  virtual bool ReloadRecords() = 0;
  /// Writes the common record, then the specific one. What was written before a failure stays written.
  virtual bool SaveRecords() = 0;
  /// Adds `common` as a new service with a copy of this one's specific records; `new_id` is null on failure.
  virtual bool AddCopy(CAlertNtfyServDB& store, ALRTNTFYSERV& common, GUID& new_id) = 0;
  /// Adds a copy of this service under another name (cut to 32 bytes), enabled and never saved.
  bool MakeCopy(const char* new_name, GUID& new_id);
  /// Deletes the common record only.
  bool DeleteRecord();

  // Default message and responses.

  virtual bool GetDefaultMessage(DefaultMessage&) const { return true; }
  /// Texts longer than the record's fields are cut so that text and identifiers stay in step.
  virtual bool SetDefaultMessage(const DefaultMessage&) { return true; }
  /// Fills the drop-down and selects `current`; false when the type has no priorities.
  virtual bool FillPriorityList(ui::ComboBox&, std::uint32_t /*current*/) { return false; }
  /// Puts the default message into a response.
  virtual bool InitWithDefaultMessage(ALERTRESPREC&) const { return true; }
  /// Points a response at this service. False, and nothing changed, when it is of the same type already.
  virtual bool ReinitializeResponse(ALERTRESPREC& response) const;
  /// False, after a message, when the response lacks what the type needs.
  virtual bool ValidateResponse(const ALERTRESPREC& response) const;

  // Users of the service.

  virtual bool IsUserConfigured(const GUID& user);
  virtual bool DeleteUser(const GUID&) { return false; }
  virtual bool FillUserList(ui::ItemList&) { return true; }

  /// Finds the user's link to this service. `link` is written only when it was found.
  bool FindUserLink(const GUID& user, ALRTUSRINSTSERV& link);
  bool AddOrUpdateUserLink(const GUID& user, const GUID& user_record, std::uint32_t record_type,
                           std::uint32_t enabled);
  /// False when there is no link; what the delete answers is not looked at.
  bool DeleteUserLink(const GUID& user);

 protected:
  /// Takes over service identity, name, types of this service and clears message, subject and keywords.
  void RetargetResponse(ALERTRESPREC& response) const;

 private:
  GUID service_id_;
  GUID test_response_id_;
  ALRTNTFYSERV common_{};
  std::uint32_t code_;
  TypeCode own_type_;
};

}  // namespace alerting
