// The module's resource ids, for korps.rc and for the code that loads them;
// the build reads the REGISTRY ids from here for the module's file checks
// (module.StaticChecks). The manifest and the version use the platform's own ids
// (ISOLATIONAWARE_MANIFEST_RESOURCE_ID, VS_VERSION_INFO).
#pragma once

#define IDS_MODULE_NAME 100           // STRINGTABLE: the module's name
#define IDR_REGISTRY_APPID 101        // REGISTRY: the AppID
#define IDR_REGISTRY_KOR_MONIKER 102  // REGISTRY: the kor: moniker class
