#include <QRLCvuBasicUtils.h>
#include <cls_MetadataRegistrar.h>
#include <cls_xcMap.h>
#include <nex_AssertException.h>
#include <nex_CommandException.h>
#include <nex_TextException.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;

void RegisterClasses() {
  cls_MetadataRegistrar& registrar = cls_MetadataRegistrar::Instance();
  registrar.initClassMetadata(&nex_Exception::InitializeMetadata, 2);
  registrar.initClassMetadata(&nex_TextException::InitializeMetadata, 2);
  registrar.initClassMetadata(&nex_CommandException::InitializeMetadata, 2);
  registrar.initClassMetadata(&nex_AssertException::InitializeMetadata, 2);
  registrar.initClassMetadata(&cls_xcList::InitializeMetadata, 2);
  registrar.initClassMetadata(&cls_xcMap::InitializeMetadata, 2);
}

void WithdrawClasses() {
  cls_MetadataRegistrar::Instance().Withdraw(cls_ExceptionModule);
  cls_MetadataRegistrar::Instance().Withdraw(cls_ContainerModule);
}
}  // namespace

void QRLCvuBasicUtils_initialize(int& count) { s_Uses.Initialize(count, RegisterClasses); }

void QRLCvuBasicUtils_finalize(int& count) { s_Uses.Finalize(count, WithdrawClasses); }
