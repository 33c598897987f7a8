#include "network/Services.h"

namespace orrery {

using namespace record;

namespace {

PART(kEventMessageSending, CFG_EVENT_MESSAGE_SENDING,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szType, "Type", Text),
         FIELD(szTitle, "Title", Text),
         FIELD(nReceiversNum),
         FIELD(szReceivers, "Receivers", Text).Count(AT(nReceiversNum)),
     });

PART(kServerCertificate, CFG_SERVER_CERTIFICATE,
     {
         FIELD(szCountry, "Country", Text),
         FIELD(szState, "State", Text),
         FIELD(szLocality, "Locatity", Text),
         FIELD(szOrganization, "Organization", Text),
         FIELD(szOrganizationUnit, "OrganizationUnit", Text),
         FIELD(szCommonName, "CommonName", Text),
         FIELD(szEmail, "Email", Text),
         FIELD(szName, "Name", Text),
         FIELD(szPath, "Path", Text),
         FIELD(nUsefulLife, "UsefulLife", Int),
     });

} // namespace

TABLE(kMobile, CFG_MOBILE_INFO,
      {
          FIELD(stuEventMessageSending, "EventMessageSending", Record(kEventMessageSending)),
      });

TABLE(kEmail, CFG_EMAIL_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(bSslEnable, "SslEnable", Bool),
          FIELD(bTlsEnable, "TlsEnable", Bool),
          FIELD(szAddress, "Address", Text),
          FIELD(nPort, "Port", Int),
          FIELD(szUserName, "UserName", Text),
          FIELD(szPassword, "Password", Text),
          FIELD(bAnonymous, "Anonymous", Bool),
          FIELD(szSendAddress, "SendAddress", Text),
          FIELD(nReceiversNum),
          FIELD(szReceivers, "Receivers", Text).Count(AT(nReceiversNum)),
          FIELD(szTitle, "Title", Text),
          FIELD(bOnlyAttachment, "OnlyAttachment", Bool),
          FIELD(bAttachEnable, "AttachEnable", Bool),
          FIELD(nSendInterv, "SendInterv", Int),
          FIELD(bHealthReportEnable, "HealthReport/Enable", Bool),
          FIELD(nHealthReportInterval, "HealthReport/Interval", Int),
      });

TABLE(kStp, CFG_STP_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
      });

TABLE(kAioApp, CFG_AIO_APP_INFO,
      {
          FIELD(szAddress, "Address", Text),
      });

TABLE(kLowRateWpanCaps, CFG_LOWRATEWPAN_CAPS,
      {
          FIELD(nMaxPageSize, "MaxPageSize", Int),
      });

TABLE(kHttps, CFG_HTTPS_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nPort, "Port", Int),
          FIELD(szRootCertificate, "RootCertificate", Text),
          FIELD(stuServerCertificate, "ServerCertificate", Record(kServerCertificate)),
      });

} // namespace orrery
